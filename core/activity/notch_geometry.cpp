#include "activity/notch_geometry.h"

#include <algorithm>
#include <cmath>

namespace tindra {
namespace {

std::optional<Rect> hardwareNotch(const ScreenDescriptor& screen) {
  const auto& left = screen.auxiliaryTopLeftArea;
  const auto& right = screen.auxiliaryTopRightArea;
  if (!(screen.safeAreaTopInset > 0) || !left || !right) return std::nullopt;
  // The housing is what the two usable menu-bar areas leave between them.
  const double width = screen.frame.width - left->width - right->width;
  if (!(width > 0)) return std::nullopt;
  const double height = screen.safeAreaTopInset;
  return Rect{screen.frame.minX() + left->width, screen.frame.maxY() - height, width, height};
}

double menuBarHeight(const ScreenDescriptor& screen) {
  const double height = screen.frame.maxY() - screen.visibleFrame.maxY();
  return height > 0 ? height : NotchGeometry::fallbackMenuBarHeight;
}

Rect simulatedNotch(const ScreenDescriptor& screen, std::optional<double> simulatedHeight,
                    double simulatedWidth) {
  const Rect& frame = screen.frame;
  const bool heightGiven =
      simulatedHeight && std::isfinite(*simulatedHeight) && *simulatedHeight > 0;
  const double height =
      std::min(heightGiven ? *simulatedHeight : menuBarHeight(screen), frame.height);
  // fmax: a width that is not a number takes the 1-point minimum.
  const double width = std::min(std::fmax(simulatedWidth, 1.0), frame.width);
  return Rect{frame.midX() - (width / 2), frame.maxY() - height, width, height};
}

}  // namespace

NotchGeometry NotchGeometry::forScreen(const ScreenDescriptor& screen,
                                       std::optional<double> simulatedHeight,
                                       double simulatedWidth) {
  if (const std::optional<Rect> hardware = hardwareNotch(screen)) {
    return {Kind::hardware, screen.frame, *hardware};
  }
  return {Kind::simulated, screen.frame, simulatedNotch(screen, simulatedHeight, simulatedWidth)};
}

}  // namespace tindra
