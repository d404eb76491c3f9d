#include "hud/hud_bar_style.h"

#include <cmath>

#include "hud/level_stepper.h"

namespace tindra {

std::string_view rawValue(HUDBarStyle style) {
  switch (style) {
    case HUDBarStyle::continuous:
      return "continuous";
    case HUDBarStyle::segmented:
      return "segmented";
    case HUDBarStyle::ring:
      return "ring";
  }
  return "continuous";
}

std::optional<HUDBarStyle> hudBarStyleFromRaw(std::string_view raw) {
  for (HUDBarStyle style : allHUDBarStyles) {
    if (rawValue(style) == raw) return style;
  }
  return std::nullopt;
}

int litSegments(double level) {
  return static_cast<int>(std::lround(LevelStepper::clampedLevel(level) * hudBarSegmentCount));
}

}  // namespace tindra
