#include "nowplaying/now_playing_paused_linger.h"

namespace tindra {

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
