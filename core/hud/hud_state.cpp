#include "hud/hud_state.h"

#include <cmath>

#include "hud/level_stepper.h"

namespace tindra {

HUDState::HUDState(HUDKind kind, double level, bool isMuted, bool isExternalDisplay)
    : kind_(kind),
      level_(LevelStepper::clampedLevel(level)),
      isMuted_(isMuted),
      isExternalDisplay_(isExternalDisplay) {}

double HUDState::displayedLevel() const {
  return kind_ == HUDKind::volume && isMuted_ ? 0 : level_;
}

int HUDState::percent() const {
  return static_cast<int>(std::lround(displayedLevel() * 100));
}

std::string_view HUDState::symbolName() const {
  switch (kind_) {
    case HUDKind::volume:
      if (isMuted_ || level_ == 0) return "speaker.slash.fill";
      if (level_ < 1.0 / 3) return "speaker.wave.1.fill";
      if (level_ < 2.0 / 3) return "speaker.wave.2.fill";
      return "speaker.wave.3.fill";
    case HUDKind::brightness:
      if (isExternalDisplay_) return "display";
      return level_ < 0.5 ? "sun.min.fill" : "sun.max.fill";
    case HUDKind::keyboardBacklight:
      return level_ < 0.5 ? "light.min" : "light.max";
  }
  return "speaker.wave.2.fill";
}

}  // namespace tindra
