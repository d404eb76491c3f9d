// HUDState: one level as the indicator shows it. The level is always in 0...1: the constructor
// clamps it, so every state can be drawn as it stands.
#pragma once

#include <string_view>

#include "hud/hud_kind.h"

namespace tindra {

class HUDState {
 public:
  // NaN and infinities become 0, the level is clamped to 0...1. `isMuted` matters for volume
  // only; `isExternalDisplay` marks brightness that belongs to an external display.
  HUDState(HUDKind kind, double level, bool isMuted = false, bool isExternalDisplay = false);

  HUDKind kind() const { return kind_; }
  double level() const { return level_; }
  bool isMuted() const { return isMuted_; }
  bool isExternalDisplay() const { return isExternalDisplay_; }

  // The level the bar shows: 0 for a muted volume.
  double displayedLevel() const;
  // The displayed level in whole percent, rounded half away from zero.
  int percent() const;
  // The symbol drawn beside the bar ("speaker.wave.2.fill").
  std::string_view symbolName() const;

  friend bool operator==(const HUDState&, const HUDState&) = default;

 private:
  HUDKind kind_;
  double level_;
  bool isMuted_;
  bool isExternalDisplay_;
};

}  // namespace tindra
