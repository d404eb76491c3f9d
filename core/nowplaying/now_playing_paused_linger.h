// NowPlayingPausedLinger: how long a just-paused track stays on the notch, stored by raw string
// under `nowPlayingPausedLingerKey`; an unknown stored value reads as the default, `short`.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class NowPlayingPausedLinger { short_, long_, untilResumed };

inline constexpr std::array<NowPlayingPausedLinger, 3> allNowPlayingPausedLingers{
    NowPlayingPausedLinger::short_, NowPlayingPausedLinger::long_,
    NowPlayingPausedLinger::untilResumed};

inline constexpr std::string_view nowPlayingPausedLingerKey = "nowPlayingPausedLinger";
inline constexpr NowPlayingPausedLinger defaultNowPlayingPausedLinger =
    NowPlayingPausedLinger::short_;

std::string_view rawValue(NowPlayingPausedLinger linger);
std::optional<NowPlayingPausedLinger> nowPlayingPausedLingerFromRaw(std::string_view raw);

// Seconds a paused track stays shown: 8 for short, 30 for long, none (no expiry) until resumed.
std::optional<double> lingerDuration(NowPlayingPausedLinger linger);

}  // namespace tindra
