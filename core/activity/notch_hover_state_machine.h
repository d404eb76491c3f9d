// NotchHoverStateMachine: decides when the notch opens and closes from what the window samples
// (pointer over the notch, button down, file drag in progress) and the monotonic time `now` in
// seconds. A plain value without clocks: the window calls `update` on every pointer, button or
// drag change, and once more when `pendingDeadline` comes.
#pragma once

#include <optional>

#include "activity/notch_opening_mode.h"
#include "activity/notch_presentation.h"

namespace tindra {

class NotchHoverStateMachine {
 public:
  struct Timing {
    // Long enough to forgive a pointer that slips off the notch's edge for a moment while the
    // user reaches for a control in the panel; short enough that the panel still follows the
    // pointer away without feeling sticky.
    static constexpr double defaultCloseDelay = 0.3;

    double openDelay = 0.12;                // seconds the pointer rests before the notch opens
    double closeDelay = defaultCloseDelay;  // seconds after the pointer leaves before it closes
    NotchOpeningMode openingMode = NotchOpeningMode::hover;
    double holdDuration = 0.5;  // seconds the button is held for pressAndHold

    friend bool operator==(const Timing&, const Timing&) = default;
  };

  // Starts compact, with nothing pending, not dismissed and no press seen.
  NotchHoverStateMachine() : NotchHoverStateMachine(Timing{}) {}
  explicit NotchHoverStateMachine(const Timing& timing) : timing_(timing) {}

  // Takes in one sample at `now`; returns true when the notch is to be shown expanded.
  bool update(bool hovering, bool buttonDown, bool fileDrag, double now);

  // Expands now (a click in click mode, or another part opening the notch on purpose).
  void open();
  // Collapses now; a dismissal stays as it was.
  void close();
  // Collapses and keeps the notch shut until the pointer has left it once.
  void dismiss();
  // Forgets the current press; while closed in pressAndHold mode its pending opening goes too.
  void cancelPress();

  const Timing& timing() const { return timing_; }
  // New settings apply from the next update; a pending deadline keeps its time.
  void setTiming(const Timing& timing) { timing_ = timing; }

  NotchPresentation presentation() const { return presentation_; }
  bool isExpanded() const { return presentation_ == NotchPresentation::expanded; }
  // When the pending change takes effect; none while nothing is pending.
  std::optional<double> pendingDeadline() const { return pendingDeadline_; }
  bool isDismissed() const { return isDismissed_; }
  bool buttonWasPressed() const { return buttonWasPressed_; }
  bool pressBeganInside() const { return pressBeganInside_; }
  bool fileDragActive() const { return fileDragActive_; }

 private:
  bool updateClosed(bool want, bool buttonDown, double now);
  bool updateTowards(bool want, double now);
  bool isOpenGateOpen() const;
  // Sets the deadline `delay` after `now` unless one is pending; true once it is reached.
  bool deadlineReached(double delay, double now);

  Timing timing_;
  NotchPresentation presentation_ = NotchPresentation::compact;
  std::optional<double> pendingDeadline_;
  bool isDismissed_ = false;
  bool buttonWasPressed_ = false;
  bool pressBeganInside_ = false;
  bool fileDragActive_ = false;
};

}  // namespace tindra
