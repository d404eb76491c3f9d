#include "hud/hud_display_duration.h"

#include <algorithm>
#include <cmath>

namespace tindra {

double HUDDisplayDuration::clamped(double seconds) {
  if (!std::isfinite(seconds)) return fallback;
  return std::clamp(seconds, minimum, maximum);
}

}  // namespace tindra
