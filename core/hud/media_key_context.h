// MediaKeyContext: everything the key router needs to know about the machine and the settings.
// Built on the main thread whenever an input changes; the key capture reads it as a copy.
#pragma once

#include "hud/brightness_access.h"
#include "hud/keyboard_backlight_access.h"

namespace tindra {

struct MediaKeyContext {
  bool volumeHUDEnabled = true;
  bool brightnessHUDEnabled = true;
  // The default output's volume can be set and its keys are not yielded to another program.
  bool volumeControllable = false;
  // The default output has a mute control that can be set.
  bool volumeHasMute = false;
  // Already after BrightnessYieldPolicy.
  BrightnessAccess brightness = BrightnessAccess::unavailable;
  KeyboardBacklightAccess keyboardBacklight = KeyboardBacklightAccess::unavailable;

  friend bool operator==(const MediaKeyContext&, const MediaKeyContext&) = default;
};

}  // namespace tindra
