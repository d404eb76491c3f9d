// NowPlayingPausedLinger: how long a just-paused track stays on the notch, stored by raw string
// under the setting `nowPlayingPausedLinger`; an unknown stored value reads as the default.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class NowPlayingPausedLinger { short_, long_, untilResumed };

template <>
struct EnumTable<NowPlayingPausedLinger> {
  static constexpr std::array cases{EnumCase{NowPlayingPausedLinger::short_, "short"},
                                    EnumCase{NowPlayingPausedLinger::long_, "long"},
                                    EnumCase{NowPlayingPausedLinger::untilResumed, "untilResumed"}};
};

inline constexpr NowPlayingPausedLinger defaultNowPlayingPausedLinger =
    NowPlayingPausedLinger::short_;

// Seconds a paused track stays shown: 8 for short, 30 for long, none (no expiry) until resumed.
std::optional<double> lingerDuration(NowPlayingPausedLinger linger);

}  // namespace tindra
