// WindowPlacement: where a small window goes inside an area (a display's visible frame): centred,
// on whole points, never past the area's left or bottom edge and never above its top edge, so
// the top edges align when the window is taller than the area.
#pragma once

#include "activity/rect.h"

namespace tindra {

struct WindowPlacement {
  // The bottom-left origin of a window of `size` centred in `area`, rounded half away from zero.
  static Point centredOrigin(Size size, const Rect& area);
};

}  // namespace tindra
