// SwipeRecognizer: turns two-finger scrolling on the notch, or a mouse drag across it, into at
// most one swipe per gesture. Motion is the way the content is moved: a drag's pointer travel, or
// a scroll's delta as the toolkit reports it (positive x moves content right, positive y down),
// so the desktop's own scrolling direction, natural or not, carries over.
#pragma once

#include <optional>

namespace tindra {

enum class SwipeDirection { left, right, up, down };

class SwipeRecognizer {
 public:
  // Travel, in pixels, after which a gesture counts.
  static constexpr double distance = 48;
  // Without a reported end, a pause this long (seconds) ends a gesture.
  static constexpr double pause = 0.3;

  // One scroll step of (dx, dy) pixels at monotonic `now`. Returns the swipe once the gesture has
  // gone far enough one way, and nothing more until the gesture ends.
  std::optional<SwipeDirection> scroll(double dx, double dy, double now);
  // The fingers left the touchpad.
  void end();

  // A whole mouse drag's travel: a swipe when it went far enough, and clearly along one axis.
  static std::optional<SwipeDirection> classify(double dx, double dy);

 private:
  double dx_ = 0;
  double dy_ = 0;
  std::optional<double> last_;
  bool fired_ = false;
};

}  // namespace tindra
