#include "hud/level_stepper.h"

#include <algorithm>
#include <cmath>

namespace tindra {

double LevelStepper::clampedLevel(double level) {
  if (!std::isfinite(level) || level < 0) return 0;
  return std::min(level, 1.0);
}

double LevelStepper::step(bool up, bool fine, double level) {
  const double steps = fine ? fineSteps : coarseSteps;
  const double s = clampedLevel(level) * steps;
  const double nearest = std::round(s);
  const bool onGrid = std::abs(s - nearest) <= onGridTolerance;
  // Between points, the next point ahead: never back onto the one just passed.
  const double ahead = up ? std::floor(s) + 1 : std::ceil(s) - 1;
  const double next = onGrid ? nearest + (up ? 1 : -1) : ahead;
  return std::clamp(next, 0.0, steps) / steps;
}

}  // namespace tindra
