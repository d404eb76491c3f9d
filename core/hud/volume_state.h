// VolumeState: the output's level (0...1) and mute, as the volume keys change them.
#pragma once

#include "hud/volume_action.h"

namespace tindra {

struct VolumeState {
  double level = 0;
  bool isMuted = false;

  // The state after one key press. Raising the volume unmutes; lowering it leaves a muted output
  // muted.
  VolumeState applying(VolumeAction action) const;

  friend bool operator==(const VolumeState&, const VolumeState&) = default;
};

}  // namespace tindra
