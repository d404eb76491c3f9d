// WindowSnapshot: one on-screen window as the window server lists it, bounds in global
// bottom-left points.
#pragma once

#include <cstdint>

#include "activity/rect.h"

namespace tindra {

struct WindowSnapshot {
  std::int32_t ownerProcessIdentifier = 0;
  int layer = 0;  // 0 is the normal application layer
  Rect bounds{};
  double alpha = 1;  // opacity

  friend bool operator==(const WindowSnapshot&, const WindowSnapshot&) = default;
};

}  // namespace tindra
