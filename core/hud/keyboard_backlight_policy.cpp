#include "hud/keyboard_backlight_policy.h"

#include <algorithm>
#include <cmath>

namespace tindra {

std::optional<double> KeyboardBacklightPolicy::level(float reading) {
  const double value = reading;
  if (!std::isfinite(value) || value > maximumReading) return std::nullopt;
  return std::min(value, 1.0);
}

KeyboardBacklightAccess KeyboardBacklightPolicy::access(bool available, bool canWrite,
                                                        bool writesIgnored) {
  if (!available) return KeyboardBacklightAccess::unavailable;
  if (canWrite && !writesIgnored) return KeyboardBacklightAccess::readWrite;
  return KeyboardBacklightAccess::readOnly;
}

}  // namespace tindra
