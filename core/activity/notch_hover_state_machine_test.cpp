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

TEST(NotchHoverStateMachine, HoverOpensWhenItsUnmovedDeadlineIsReachedExactly) {
  auto m = machine(Mode::hover);
  EXPECT_FALSE(m.update(true, false, false, 10.0));
  const double deadline = m.pendingDeadline().value();
  EXPECT_DOUBLE_EQ(deadline, 10.12);
  EXPECT_FALSE(m.update(true, false, false, 10.05));
  EXPECT_EQ(m.pendingDeadline(), deadline);
  EXPECT_FALSE(m.update(true, false, false, justBefore(deadline)));
  EXPECT_TRUE(m.update(true, false, false, deadline));
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  // Leaving before the deadline drops it; returning starts a new one.
  m.close();
  m.update(true, false, false, 20.0);
  m.update(false, false, false, 20.05);
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  m.update(true, false, false, 20.06);
  EXPECT_DOUBLE_EQ(*m.pendingDeadline(), 20.18);
}

TEST(NotchHoverStateMachine, ClosesAfterTheCloseDelayUnlessThePointerReturns) {
  auto m = machine(Mode::hover);
  m.open();
  EXPECT_TRUE(m.update(false, false, false, 20.0));
  EXPECT_TRUE(m.update(true, false, false, 20.2));
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  m.update(false, false, false, 21.0);
  const double deadline = m.pendingDeadline().value();
  EXPECT_TRUE(m.update(false, false, false, justBefore(deadline)));
  EXPECT_FALSE(m.update(false, false, false, deadline));
  // A button held down and dragged out of the open notch closes it the same way.
  m.open();
  m.update(true, true, false, 30.0);
  EXPECT_TRUE(m.update(false, true, false, 30.1));
  EXPECT_FALSE(m.update(false, true, false, 30.5));
}

TEST(NotchHoverStateMachine, DismissalHoldsUntilThePointerLeaves) {
  auto m = machine(Mode::hover);
  m.open();
  m.dismiss();
  EXPECT_FALSE(m.update(true, false, false, 1.0));
  EXPECT_FALSE(m.update(true, false, false, 5.0));
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  m.close();  // leaves the dismissal alone
  EXPECT_TRUE(m.isDismissed());
  m.update(false, false, false, 6.0);
  EXPECT_FALSE(m.isDismissed());
  m.update(true, false, false, 7.0);
  EXPECT_TRUE(m.update(true, false, false, 7.12));
}

TEST(NotchHoverStateMachine, PressAndHoldOpensOnlyForAPressBegunInside) {
  auto m = machine(Mode::pressAndHold);
  EXPECT_FALSE(m.update(true, false, false, 0.0));
  EXPECT_FALSE(m.update(true, false, false, 9.0));
  // Pressed outside, slid in and held.
  m.update(false, true, false, 10.0);
  EXPECT_FALSE(m.update(true, true, false, 10.1));
  EXPECT_FALSE(m.update(true, true, false, 12.0));
  m.update(true, false, false, 13.0);
  // Pressed inside, released early.
  m.update(true, true, false, 20.0);
  EXPECT_DOUBLE_EQ(*m.pendingDeadline(), 20.5);
  m.update(true, false, false, 20.3);
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  // Pressed inside, slid out and back in.
  m.update(true, true, false, 30.0);
  m.update(false, true, false, 30.1);
  EXPECT_FALSE(m.update(true, true, false, 31.0));
  m.update(true, false, false, 31.5);
  // Cancelled: the pending opening goes with the press.
  m.update(true, true, false, 35.0);
  m.cancelPress();
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  EXPECT_FALSE(m.update(true, true, false, 36.0));
  m.update(true, false, false, 36.5);
  // A dismissal does not gate the hold.
  m.dismiss();
  m.update(true, true, false, 40.0);
  EXPECT_FALSE(m.update(true, true, false, 40.4));
  EXPECT_TRUE(m.update(true, true, false, 40.5));
}

TEST(NotchHoverStateMachine, ClickModeOpensOnlyThroughOpen) {
  auto m = machine(Mode::click);
  m.update(true, true, false, 0.0);
  EXPECT_FALSE(m.update(true, true, false, 5.0));
  EXPECT_EQ(m.pendingDeadline(), std::nullopt);
  m.open();
  m.update(false, false, false, 7.0);
  EXPECT_FALSE(m.update(false, false, false, 7.3));
}

TEST(NotchHoverStateMachine, FileDragOpensAfterTheOpenDelayInEveryMode) {
  for (Mode mode : allCases<NotchOpeningMode>()) {
    for (bool dismissed : {false, true}) {
      SCOPED_TRACE(std::string(rawValue(mode)) + (dismissed ? " dismissed" : ""));
      auto m = machine(mode);
      if (dismissed) m.dismiss();
      EXPECT_FALSE(m.update(true, false, true, 10.0));
      EXPECT_DOUBLE_EQ(*m.pendingDeadline(), 10.12);
      EXPECT_TRUE(m.update(true, false, true, *m.pendingDeadline()));
      m.update(false, false, true, 11.0);
      EXPECT_FALSE(m.update(false, false, true, 11.3));
    }
  }
}

}  // namespace
}  // namespace tindra
