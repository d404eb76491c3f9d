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
  double next;
  if (std::abs(s - nearest) <= onGridTolerance) {
    next = up ? nearest + 1 : nearest - 1;
  } else {
    next = up ? std::floor(s) + 1 : std::ceil(s) - 1;
  }
  return std::clamp(next, 0.0, steps) / steps;
}

}  // namespace tindra
