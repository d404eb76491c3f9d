#include "hud/hud_tint.h"

#include "hud/level_stepper.h"

namespace tindra {

HUDColor levelColor(double level) {
  static constexpr std::array<HUDColor, 3> stops{HUDColor{0.4, 0.72, 1.0}, HUDColor{0.52, 0.9, 0.6},
                                                 HUDColor{1.0, 0.58, 0.3}};
  const double t = 2 * LevelStepper::clampedLevel(level);
  // Level 1 is the end of the upper half, not the start of a third one.
  const bool upper = t >= 1;
  const HUDColor& from = upper ? stops[1] : stops[0];
  const HUDColor& to = upper ? stops[2] : stops[1];
  const double f = upper ? t - 1 : t;
  const auto mix = [f](double a, double b) { return a + (f * (b - a)); };
  return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

}  // namespace tindra
