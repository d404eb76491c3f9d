#include "nowplaying/now_playing_paused_linger.h"

namespace tindra {

std::string_view rawValue(NowPlayingPausedLinger linger) {
  switch (linger) {
    case NowPlayingPausedLinger::short_:
      return "short";
    case NowPlayingPausedLinger::long_:
      return "long";
    case NowPlayingPausedLinger::untilResumed:
      return "untilResumed";
  }
  return "short";
}

std::optional<NowPlayingPausedLinger> nowPlayingPausedLingerFromRaw(std::string_view raw) {
  for (NowPlayingPausedLinger linger : allNowPlayingPausedLingers) {
    if (rawValue(linger) == raw) return linger;
  }
  return std::nullopt;
}

std::optional<double> lingerDuration(NowPlayingPausedLinger linger) {
  switch (linger) {
    case NowPlayingPausedLinger::short_:
      return 8.0;
    case NowPlayingPausedLinger::long_:
      return 30.0;
    case NowPlayingPausedLinger::untilResumed:
      return std::nullopt;
  }
  return 8.0;
}

}  // namespace tindra
