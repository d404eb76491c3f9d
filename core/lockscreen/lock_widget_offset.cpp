#include "lockscreen/lock_widget_offset.h"

#include <algorithm>
#include <cmath>

namespace tindra {

double clampedLockWidgetOffset(double stored) {
  if (!std::isfinite(stored)) return 0;
  return std::clamp(stored, -maxLockWidgetOffset, maxLockWidgetOffset);
}

}  // namespace tindra
