#include "hud/hud_bar_motion.h"

#include <algorithm>
#include <cmath>

namespace tindra {

HUDBarMotion HUDBarMotion::forInterval(std::optional<double> sinceLastChange) {
  if (!sinceLastChange) return settle();
  const double interval = *sinceLastChange;
  if (!std::isfinite(interval) || interval <= 0 || interval >= glideWindow) return settle();
  return glide(std::max(interval, minimumGlide));
}

}  // namespace tindra
