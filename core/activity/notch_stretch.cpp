#include "activity/notch_stretch.h"

#include <algorithm>
#include <cmath>

namespace tindra {
namespace {

double clampedScale(double scale) {
  return std::isfinite(scale) && scale > 0 ? scale : 0;
}

double clampedAnchor(double anchorX) {
  // Anchors left of 0.3 would pull the shape off the camera housing.
  return std::isfinite(anchorX) ? std::clamp(anchorX, 0.3, 1.0) : 0.5;
}

}  // namespace

NotchStretch::NotchStretch(double widthScale, double heightScale, double anchorX)
    : widthScale_(clampedScale(widthScale)),
      heightScale_(clampedScale(heightScale)),
      anchorX_(clampedAnchor(anchorX)) {}

double NotchStretch::amount(double pull) {
  if (!std::isfinite(pull)) return 0;
  // Ease-out: quick to respond, then resisting, topping out at 12 %.
  const double t = std::min(std::abs(pull), 1.0);
  return 0.12 * t * (2 - t);
}

}  // namespace tindra
