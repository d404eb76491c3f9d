#include "activity/notice_duration_scale.h"

#include <algorithm>
#include <cmath>

namespace tindra {

double scale(NoticeDurationScale scale, double seconds) {
  if (scale == NoticeDurationScale::medium || !std::isfinite(seconds) || seconds <= 0) {
    return seconds;
  }
  // The 1.5 s floor keeps a shortened notice readable.
  const double factor = scale == NoticeDurationScale::short_ ? 0.6 : 1.6;
  return std::max(std::min(seconds, 1.5), seconds * factor);
}

}  // namespace tindra
