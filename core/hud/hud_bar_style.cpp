#include "hud/hud_bar_style.h"

#include <cmath>

#include "hud/level_stepper.h"

namespace tindra {

int litSegments(double level) {
  return static_cast<int>(std::lround(LevelStepper::clampedLevel(level) * hudBarSegmentCount));
}

}  // namespace tindra
