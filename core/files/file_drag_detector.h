// FileDragDetector: tells a file dragged out of the tray from a gesture on the notch. The drag
// pasteboard's change count is noted when the mouse goes down on the tray; a different count
// afterwards means a file drag began, which the notch must not take for a swipe.
#pragma once

#include <optional>

namespace tindra {

struct FileDragDetector {
  std::optional<int> changeCountAtMouseDown;

  void mouseDown(int changeCount) { changeCountAtMouseDown = changeCount; }
  void mouseUp() { changeCountAtMouseDown.reset(); }
  // Whether a file drag out of the tray began since the mouse went down.
  bool dragBegan(int changeCount) const {
    return changeCountAtMouseDown && *changeCountAtMouseDown != changeCount;
  }
};

}  // namespace tindra
