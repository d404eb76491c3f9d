#include "hud/hud_tint.h"

#include <algorithm>
#include <cmath>

#include "hud/level_stepper.h"

namespace tindra {

std::string_view rawValue(HUDTint tint) {
  switch (tint) {
    case HUDTint::white:
      return "white";
    case HUDTint::level:
      return "level";
    case HUDTint::accent:
      return "accent";
  }
  return "white";
}

std::optional<HUDTint> hudTintFromRaw(std::string_view raw) {
  for (HUDTint tint : allHUDTints) {
    if (rawValue(tint) == raw) return tint;
  }
  return std::nullopt;
}

HUDColor levelColor(double level) {
  static constexpr std::array<HUDColor, 3> stops{HUDColor{0.4, 0.72, 1.0}, HUDColor{0.52, 0.9, 0.6},
                                                 HUDColor{1.0, 0.58, 0.3}};
  const double t = 2 * LevelStepper::clampedLevel(level);
  // Level 1 is the end of the upper segment, not the start of a third one.
  const double segment = std::min(std::floor(t), 1.0);
  const double f = t - segment;
  const HUDColor& from = stops[static_cast<std::size_t>(segment)];
  const HUDColor& to = stops[static_cast<std::size_t>(segment) + 1];
  return {from.red + f * (to.red - from.red), from.green + f * (to.green - from.green),
          from.blue + f * (to.blue - from.blue)};
}

}  // namespace tindra
