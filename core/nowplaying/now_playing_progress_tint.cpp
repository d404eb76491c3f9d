#include "nowplaying/now_playing_progress_tint.h"

namespace tindra {

std::string_view rawValue(NowPlayingProgressTint tint) {
  return tint == NowPlayingProgressTint::artwork ? "artwork" : "standard";
}

std::optional<NowPlayingProgressTint> nowPlayingProgressTintFromRaw(std::string_view raw) {
  for (NowPlayingProgressTint tint : allNowPlayingProgressTints) {
    if (rawValue(tint) == raw) return tint;
  }
  return std::nullopt;
}

}  // namespace tindra
