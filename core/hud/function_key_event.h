// FunctionKeyEvent: a brightness key that an external keyboard sends as F14 (down) or F15 (up).
#pragma once

#include <optional>

namespace tindra {

struct FunctionKeyEvent {
  static constexpr int brightnessDownKeyCode = 107;  // F14
  static constexpr int brightnessUpKeyCode = 113;    // F15

  bool isBrightnessUp = false;
  bool isKeyDown = false;
  bool isRepeat = false;

  // None for any virtual key code but F14 and F15.
  static std::optional<FunctionKeyEvent> make(int keyCode, bool isKeyDown, bool isRepeat);

  friend bool operator==(const FunctionKeyEvent&, const FunctionKeyEvent&) = default;
};

}  // namespace tindra
