#include "activity/window_placement.h"

#include <algorithm>
#include <cmath>

namespace tindra {

Point WindowPlacement::centredOrigin(Size size, const Rect& area) {
  const double x = std::max(area.minX(), area.midX() - size.width / 2);
  // The top edge wins over the bottom one: a window taller than the area hangs from its top.
  const double y =
      std::min(std::max(area.minY(), area.midY() - size.height / 2), area.maxY() - size.height);
  return {std::round(x), std::round(y)};
}

}  // namespace tindra
