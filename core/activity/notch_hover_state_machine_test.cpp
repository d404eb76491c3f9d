#include "activity/notch_hover_state_machine.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tindra {
namespace {

using Mode = NotchOpeningMode;

NotchHoverStateMachine machine(Mode mode) {
  return NotchHoverStateMachine(
      {.openDelay = 0.12, .closeDelay = 0.3, .openingMode = mode, .holdDuration = 0.5});
}

double justBefore(double t) {
  return std::nextafter(t, 0.0);
}

TEST(NotchOpeningMode, RawValuesRoundTripAndUnknownHasNone) {
  for (Mode mode : allNotchOpeningModes) EXPECT_EQ(notchOpeningModeFromRaw(rawValue(mode)), mode);
  EXPECT_EQ(rawValue(Mode::pressAndHold), "pressAndHold");
  EXPECT_EQ(notchOpeningModeFromRaw("Hover"), std::nullopt);
  EXPECT_EQ(notchOpeningModeFromRaw(""), std::nullopt);
}

TEST(NotchHoverStateMachine, HoverOpensWhenTheDeadlineIsReachedExactly) {
  auto m = machine(Mode::hover);
  EXPECT_FALSE(m.update(true, false, false, 10.0));
  ASSERT_TRUE(m.pendingDeadline());
  const double deadline = *m.pendingDeadline();
  EXPECT_DOUBLE_EQ(deadline, 10.12);
  // Later samples do not move the deadline.
  EXPECT_FALSE(m.update(true, false, false, 10.05));
  EXPECT_EQ(m.pendingDeadline(), deadline);
  EXPECT_FALSE(m.update(true, false, false, justBefore(deadline)));
  EXPECT_TRUE(m.update(true, false, false, deadline));
  EXPECT_EQ(m.presentation(), NotchPresentation::expanded);
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
}

TEST(NotchHoverStateMachine, LeavingClearsTheOpeningAndReturningStartsAnew) {
  auto m = machine(Mode::hover);
  m.update(true, false, false, 10.0);
  EXPECT_FALSE(m.update(false, false, false, 10.05));
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  m.update(true, false, false, 10.06);
  EXPECT_DOUBLE_EQ(*m.pendingDeadline(), 10.18);
}

TEST(NotchHoverStateMachine, ClosesAfterTheCloseDelayUnlessThePointerReturns) {
  auto m = machine(Mode::hover);
  m.open();
  EXPECT_TRUE(m.update(false, false, false, 20.0));
  EXPECT_DOUBLE_EQ(*m.pendingDeadline(), 20.3);
  EXPECT_TRUE(m.update(true, false, false, 20.2));
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  m.update(false, false, false, 21.0);
  const double deadline = *m.pendingDeadline();
  EXPECT_TRUE(m.update(false, false, false, justBefore(deadline)));
  EXPECT_FALSE(m.update(false, false, false, deadline));
  EXPECT_EQ(m.presentation(), NotchPresentation::compact);
  // A button held outside the open notch closes it the same way.
  m.open();
  m.update(true, true, false, 30.0);
  EXPECT_TRUE(m.update(false, true, false, 30.1));
  EXPECT_FALSE(m.update(false, true, false, 30.5));
}

TEST(NotchHoverStateMachine, DismissalHoldsUntilThePointerLeaves) {
  auto m = machine(Mode::hover);
  m.open();
  m.dismiss();
  EXPECT_TRUE(m.isDismissed());
  EXPECT_FALSE(m.update(true, false, false, 1.0));
  EXPECT_FALSE(m.update(true, false, false, 5.0));
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  // close() leaves the dismissal alone.
  m.close();
  EXPECT_TRUE(m.isDismissed());
  m.update(false, false, false, 6.0);
  EXPECT_FALSE(m.isDismissed());
  m.update(true, false, false, 7.0);
  EXPECT_TRUE(m.update(true, false, false, 7.12));
}

TEST(NotchHoverStateMachine, PressAndHoldOpensOnlyForAPressBegunInside) {
  auto m = machine(Mode::pressAndHold);
  // Resting without a press never opens.
  EXPECT_FALSE(m.update(true, false, false, 0.0));
  EXPECT_FALSE(m.update(true, false, false, 9.0));
  // Pressed outside, slid in and held: never.
  m.update(false, true, false, 10.0);
  EXPECT_FALSE(m.update(true, true, false, 10.1));
  EXPECT_FALSE(m.update(true, true, false, 12.0));
  EXPECT_FALSE(m.pressBeganInside());
  m.update(true, false, false, 13.0);
  // Pressed inside, released early: the deadline goes.
  m.update(true, true, false, 20.0);
  EXPECT_DOUBLE_EQ(*m.pendingDeadline(), 20.5);
  m.update(true, false, false, 20.3);
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  // Pressed inside, slid out and back in: the press no longer counts.
  m.update(true, true, false, 30.0);
  m.update(false, true, false, 30.1);
  EXPECT_FALSE(m.update(true, true, false, 31.0));
  m.update(true, false, false, 31.5);
  // A dismissal does not gate the hold: held inside, it opens after holdDuration.
  m.dismiss();
  m.update(true, true, false, 40.0);
  EXPECT_FALSE(m.update(true, true, false, 40.4));
  EXPECT_TRUE(m.update(true, true, false, 40.5));
}

TEST(NotchHoverStateMachine, CancelPressDropsAPendingHoldOnly) {
  auto hold = machine(Mode::pressAndHold);
  hold.update(true, true, false, 0.0);
  hold.cancelPress();
  EXPECT_EQ(hold.pendingDeadline(), std::nullopt);
  EXPECT_FALSE(hold.update(true, true, false, 1.0));

  auto hover = machine(Mode::hover);
  hover.update(true, true, false, 0.0);
  hover.cancelPress();
  EXPECT_FALSE(hover.pressBeganInside());
  EXPECT_TRUE(hover.pendingDeadline());
}

TEST(NotchHoverStateMachine, ClickModeOpensOnlyThroughOpen) {
  auto m = machine(Mode::click);
  m.update(true, true, false, 0.0);
  EXPECT_FALSE(m.update(true, true, false, 5.0));
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  m.open();
  EXPECT_TRUE(m.update(true, false, false, 6.0));
  m.update(false, false, false, 7.0);
  EXPECT_FALSE(m.update(false, false, false, 7.3));
}

TEST(NotchHoverStateMachine, FileDragOpensAfterTheOpenDelayInEveryMode) {
  for (Mode mode : allNotchOpeningModes) {
    for (bool dismissed : {false, true}) {
      SCOPED_TRACE(std::string(rawValue(mode)) + (dismissed ? " dismissed" : ""));
      auto m = machine(mode);
      if (dismissed) m.dismiss();
      EXPECT_FALSE(m.update(true, false, true, 10.0));
      EXPECT_TRUE(m.fileDragActive());
      EXPECT_DOUBLE_EQ(*m.pendingDeadline(), 10.12);
      EXPECT_TRUE(m.update(true, false, true, *m.pendingDeadline()));
      // Dragged away again, it closes after the close delay.
      m.update(false, false, true, 11.0);
      EXPECT_FALSE(m.update(false, false, true, 11.3));
    }
  }
}

TEST(NotchHoverStateMachine, AnOpeningPendingWhenADragStartsKeepsItsDeadline) {
  auto m = machine(Mode::hover);
  m.update(true, false, false, 10.0);
  m.update(true, false, true, 10.1);
  EXPECT_DOUBLE_EQ(*m.pendingDeadline(), 10.12);
  // A drag leaving the closed notch drops the wish to open.
  m.update(false, false, true, 10.11);
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
}

}  // namespace
}  // namespace tindra
