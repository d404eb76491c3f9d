#include "activity/swipe_recognizer.h"

#include <cmath>

namespace tindra {

namespace {

// The leading axis must have at least this many times the other's travel: a diagonal stroke is
// no swipe, and a vertical scroll that wanders a little is still vertical.
constexpr double dominance = 2;

}  // namespace

std::optional<SwipeDirection> SwipeRecognizer::scroll(double dx, double dy, double now) {
  if (!std::isfinite(dx) || !std::isfinite(dy) || !std::isfinite(now)) return std::nullopt;
  if (last_ && (now - *last_ > pause || now < *last_)) end();
  last_ = now;
  if (fired_) return std::nullopt;
  dx_ += dx;
  dy_ += dy;
  const std::optional<SwipeDirection> swipe = classify(dx_, dy_);
  fired_ = swipe.has_value();
  return swipe;
}

void SwipeRecognizer::end() {
  dx_ = 0;
  dy_ = 0;
  last_.reset();
  fired_ = false;
}

std::optional<SwipeDirection> SwipeRecognizer::classify(double dx, double dy) {
  const double across = std::abs(dx);
  const double down = std::abs(dy);
  if (across >= distance && across >= dominance * down) {
    return dx > 0 ? SwipeDirection::right : SwipeDirection::left;
  }
  if (down >= distance && down >= dominance * across) {
    return dy > 0 ? SwipeDirection::down : SwipeDirection::up;
  }
  return std::nullopt;
}

}  // namespace tindra
