#include "hud/volume_state.h"

#include "hud/level_stepper.h"

namespace tindra {

VolumeState VolumeState::applying(VolumeAction action) const {
  switch (action.actionCase()) {
    case VolumeAction::Case::up:
      return {LevelStepper::step(true, action.fine(), level), false};
    case VolumeAction::Case::down:
      return {LevelStepper::step(false, action.fine(), level), isMuted};
    case VolumeAction::Case::toggleMute:
      return {level, !isMuted};
  }
  return *this;
}

}  // namespace tindra
