// NowPlayingSourceKind: which source produced a snapshot; NowPlayingSourceMode: the user's choice
// of sources (setting `nowPlayingSourceMode`). Both are stored and logged by raw string.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class NowPlayingSourceKind { adapter, appleScript };
enum class NowPlayingSourceMode { automatic, appleScriptOnly };

inline constexpr std::array<NowPlayingSourceKind, 2> allNowPlayingSourceKinds{
    NowPlayingSourceKind::adapter, NowPlayingSourceKind::appleScript};
inline constexpr std::array<NowPlayingSourceMode, 2> allNowPlayingSourceModes{
    NowPlayingSourceMode::automatic, NowPlayingSourceMode::appleScriptOnly};

std::string_view rawValue(NowPlayingSourceKind kind);
std::string_view rawValue(NowPlayingSourceMode mode);
std::optional<NowPlayingSourceKind> nowPlayingSourceKindFromRaw(std::string_view raw);
std::optional<NowPlayingSourceMode> nowPlayingSourceModeFromRaw(std::string_view raw);

}  // namespace tindra
