// NotchGeometry: where the notch sits on one display. Over a hardware notch it covers the camera
// housing exactly; elsewhere it is a drawn notch of the user's size, centred on the top edge and
// never larger than the display.
#pragma once

#include <optional>

#include "activity/rect.h"
#include "activity/screen_descriptor.h"
#include "base/enum_table.h"

namespace tindra {

struct NotchGeometry {
  enum class Kind { hardware, simulated };

  // Taken as the menu bar's height when the visible frame reaches the top of the display.
  static constexpr double fallbackMenuBarHeight = 24;

  // The hardware notch when the inset and both auxiliary areas describe one; otherwise a drawn
  // notch `simulatedWidth` wide (at least 1 point) and `simulatedHeight` high, or as high as the
  // menu bar when that is absent, not finite or not positive.
  static NotchGeometry forScreen(const ScreenDescriptor& screen,
                                 std::optional<double> simulatedHeight, double simulatedWidth);

  Kind kind = Kind::simulated;
  Rect screenFrame{};
  Rect notchRect{};

  friend bool operator==(const NotchGeometry&, const NotchGeometry&) = default;
};

template <>
struct EnumTable<NotchGeometry::Kind> {
  using E = NotchGeometry::Kind;
  static constexpr std::array cases{EnumCase{E::hardware, "hardware"},
                                    EnumCase{E::simulated, "simulated"}};
};

}  // namespace tindra
