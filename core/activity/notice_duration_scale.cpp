#include "activity/notice_duration_scale.h"

#include <algorithm>
#include <cmath>

namespace tindra {

std::string_view rawValue(NoticeDurationScale scale) {
  switch (scale) {
    case NoticeDurationScale::short_:
      return "short";
    case NoticeDurationScale::medium:
      return "medium";
    case NoticeDurationScale::long_:
      return "long";
  }
  return "medium";
}

std::optional<NoticeDurationScale> noticeDurationScaleFromRaw(std::string_view raw) {
  for (NoticeDurationScale scale : allNoticeDurationScales) {
    if (rawValue(scale) == raw) return scale;
  }
  return std::nullopt;
}

double scale(NoticeDurationScale scale, double seconds) {
  if (scale == NoticeDurationScale::medium || !std::isfinite(seconds) || seconds <= 0) {
    return seconds;
  }
  // The 1.5 s floor keeps a shortened notice readable.
  const double factor = scale == NoticeDurationScale::short_ ? 0.6 : 1.6;
  return std::max(std::min(seconds, 1.5), seconds * factor);
}

}  // namespace tindra
