#include "activity/notch_hover_state_machine.h"

namespace tindra {

bool NotchHoverStateMachine::update(bool hovering, bool buttonDown, bool fileDrag, double now) {
  fileDragActive_ = fileDrag;
  if (!hovering) isDismissed_ = false;

  bool want = hovering;
  if (!buttonDown) {
    pressBeganInside_ = false;
  } else if (buttonWasPressed_) {
    // A press that slides out of the notch can no longer open it, even if it slides back in.
    if (!hovering) pressBeganInside_ = false;
  } else {
    pressBeganInside_ = hovering;
  }
  buttonWasPressed_ = buttonDown;

  if (presentation_ == NotchPresentation::compact && !fileDrag) {
    return updateClosed(want, buttonDown, now);
  }
  return updateTowards(want, now);
}

bool NotchHoverStateMachine::updateClosed(bool want, bool buttonDown, double now) {
  const NotchOpeningMode mode = timing_.openingMode;
  const bool modeCanOpen =
      mode == NotchOpeningMode::hover || (mode == NotchOpeningMode::pressAndHold && buttonDown);
  if (!modeCanOpen || !want || !isOpenGateOpen()) {
    pendingDeadline_.reset();
    return false;
  }
  const double delay = mode == NotchOpeningMode::hover ? timing_.openDelay : timing_.holdDuration;
  if (!deadlineReached(delay, now)) return false;
  presentation_ = NotchPresentation::expanded;
  return true;
}

bool NotchHoverStateMachine::isOpenGateOpen() const {
  // In pressAndHold mode only where the press began matters, not an earlier dismissal.
  return timing_.openingMode == NotchOpeningMode::pressAndHold ? pressBeganInside_ : !isDismissed_;
}

bool NotchHoverStateMachine::updateTowards(bool want, double now) {
  const bool expanded = isExpanded();
  if (want == expanded) {
    pendingDeadline_.reset();
    return expanded;
  }
  double delay = timing_.closeDelay;
  if (want) {
    // Only a file drag gets here while closed; it opens after the hover delay in every mode.
    const bool holding = timing_.openingMode == NotchOpeningMode::pressAndHold && !fileDragActive_;
    delay = holding ? timing_.holdDuration : timing_.openDelay;
  }
  if (!deadlineReached(delay, now)) return expanded;
  presentation_ = want ? NotchPresentation::expanded : NotchPresentation::compact;
  return want;
}

bool NotchHoverStateMachine::deadlineReached(double delay, double now) {
  if (!pendingDeadline_) pendingDeadline_ = now + delay;
  if (*pendingDeadline_ > now) return false;
  pendingDeadline_.reset();
  return true;
}

void NotchHoverStateMachine::open() {
  presentation_ = NotchPresentation::expanded;
  pendingDeadline_.reset();
}

void NotchHoverStateMachine::close() {
  presentation_ = NotchPresentation::compact;
  pendingDeadline_.reset();
}

void NotchHoverStateMachine::dismiss() {
  close();
  isDismissed_ = true;
}

void NotchHoverStateMachine::cancelPress() {
  pressBeganInside_ = false;
  if (presentation_ == NotchPresentation::compact &&
      timing_.openingMode == NotchOpeningMode::pressAndHold) {
    pendingDeadline_.reset();
  }
}

}  // namespace tindra
