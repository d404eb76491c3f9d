// ScreenDescriptor: what the core needs to know about one attached display, in bottom-left
// points. The app fills one per screen; displays without a camera housing have a zero inset and
// no auxiliary areas.
#pragma once

#include <optional>

#include "activity/rect.h"

namespace tindra {

struct ScreenDescriptor {
  Rect frame{};                                 // the whole display
  Rect visibleFrame{};                          // the display minus the menu bar and the dock
  double safeAreaTopInset = 0;                  // the hardware notch's height; 0 without one
  std::optional<Rect> auxiliaryTopLeftArea{};   // usable menu-bar area left of the hardware notch
  std::optional<Rect> auxiliaryTopRightArea{};  // and right of it

  friend bool operator==(const ScreenDescriptor&, const ScreenDescriptor&) = default;
};

}  // namespace tindra
