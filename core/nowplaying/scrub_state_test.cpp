#include "nowplaying/scrub_state.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(ScrubStateTest, CommittedTargetShowsUntilConfirmedOrExpired) {
  ScrubState scrub{std::nullopt, 42, 100};
  // The player still reports the old place: show the target plus the time since the commit.
  EXPECT_DOUBLE_EQ(*scrub.displayPosition(30, true, 101), 43);
  EXPECT_DOUBLE_EQ(*scrub.displayPosition(30, false, 101), 42);
  EXPECT_DOUBLE_EQ(*scrub.displayPosition(std::nullopt, true, 102.5), 44.5);
  scrub.settle(30, true, 101);
  EXPECT_TRUE(scrub.pendingTarget);

  // A report within 1.5 s of where the seek should be by now is shown and confirms it.
  EXPECT_DOUBLE_EQ(*scrub.displayPosition(44.5, true, 101), 44.5);
  scrub.settle(43, true, 101);
  EXPECT_FALSE(scrub.pendingTarget);
  EXPECT_DOUBLE_EQ(*scrub.displayPosition(30, true, 101), 30);

  // After 3 s the report wins even when it is absent or far off.
  ScrubState stale{std::nullopt, 42, 100};
  EXPECT_DOUBLE_EQ(*stale.displayPosition(10, true, 102.99), 44.99);
  EXPECT_DOUBLE_EQ(*stale.displayPosition(10, true, 103), 10);
  EXPECT_FALSE(stale.displayPosition(std::nullopt, true, 103));
  stale.settle(std::nullopt, true, 102.99);
  EXPECT_TRUE(stale.pendingTarget);
  stale.settle(std::nullopt, true, 103);
  EXPECT_FALSE(stale.pendingTarget);
}

TEST(ScrubStateTest, DraggingOverridesEverythingAndClockSkewAddsNoDrift) {
  ScrubState dragging{12, 42, 100};
  EXPECT_DOUBLE_EQ(*dragging.displayPosition(42, true, 101), 12);

  // A commit stamped in the future (clock moved back) expects the target itself.
  ScrubState skewed{std::nullopt, 42, 200};
  EXPECT_DOUBLE_EQ(*skewed.displayPosition(10, true, 190), 42);
  skewed.settle(43.5, true, 190);
  EXPECT_FALSE(skewed.pendingTarget);
}

}  // namespace
}  // namespace tindra
