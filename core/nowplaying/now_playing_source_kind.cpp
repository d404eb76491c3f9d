#include "nowplaying/now_playing_source_kind.h"

namespace tindra {

std::string_view rawValue(NowPlayingSourceKind kind) {
  switch (kind) {
    case NowPlayingSourceKind::adapter:
      return "adapter";
    case NowPlayingSourceKind::appleScript:
      return "appleScript";
  }
  return "adapter";
}

std::string_view rawValue(NowPlayingSourceMode mode) {
  switch (mode) {
    case NowPlayingSourceMode::automatic:
      return "automatic";
    case NowPlayingSourceMode::appleScriptOnly:
      return "appleScriptOnly";
  }
  return "automatic";
}

std::optional<NowPlayingSourceKind> nowPlayingSourceKindFromRaw(std::string_view raw) {
  for (NowPlayingSourceKind kind : allNowPlayingSourceKinds) {
    if (rawValue(kind) == raw) return kind;
  }
  return std::nullopt;
}

std::optional<NowPlayingSourceMode> nowPlayingSourceModeFromRaw(std::string_view raw) {
  for (NowPlayingSourceMode mode : allNowPlayingSourceModes) {
    if (rawValue(mode) == raw) return mode;
  }
  return std::nullopt;
}

}  // namespace tindra
