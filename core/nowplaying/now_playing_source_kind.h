// NowPlayingSourceKind: which source produced a snapshot; NowPlayingSourceMode: the user's choice
// of sources (setting `nowPlayingSourceMode`). Both are stored and logged by raw string.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class NowPlayingSourceKind { adapter, appleScript };

template <>
struct EnumTable<NowPlayingSourceKind> {
  static constexpr std::array cases{EnumCase{NowPlayingSourceKind::adapter, "adapter"},
                                    EnumCase{NowPlayingSourceKind::appleScript, "appleScript"}};
};
enum class NowPlayingSourceMode { automatic, appleScriptOnly };

template <>
struct EnumTable<NowPlayingSourceMode> {
  static constexpr std::array cases{
      EnumCase{NowPlayingSourceMode::automatic, "automatic"},
      EnumCase{NowPlayingSourceMode::appleScriptOnly, "appleScriptOnly"}};
};

}  // namespace tindra
