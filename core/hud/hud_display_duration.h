// HUDDisplayDuration: how long the indicator stays on screen after a change (the `hudDuration`
// setting), kept within a range that is neither a flicker nor in the way.
#pragma once

namespace tindra {

struct HUDDisplayDuration {
  HUDDisplayDuration() = delete;

  static constexpr double minimum = 0.8;
  static constexpr double maximum = 4.0;
  static constexpr double fallback = 1.5;

  // `seconds` clamped to minimum...maximum; the fallback when it is not finite.
  static double clamped(double seconds);
};

}  // namespace tindra
