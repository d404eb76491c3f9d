// KeyboardBacklightPolicy: the rules that keep the private keyboard-backlight interface safe to
// use: which readings to believe, and what the keys may do given what the machine allows.
#pragma once

#include <optional>

#include "hud/keyboard_backlight_access.h"

namespace tindra {

struct KeyboardBacklightPolicy {
  KeyboardBacklightPolicy() = delete;

  // Readings a little above 1 are rounding noise.
  static constexpr double maximumReading = 1.001;

  // The level of a reading: finite and not above 1.001, taken as at most 1; none otherwise.
  static std::optional<double> level(float reading);

  // What the keys may do: unavailable, readWrite only when writable and writes were not found
  // to be ignored, else readOnly (the system changes the level and the notch shows it).
  static KeyboardBacklightAccess access(bool available, bool canWrite, bool writesIgnored);
};

}  // namespace tindra
