#include "hud/level_stepper.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "hud/pending_level_stepper.h"
#include "hud/volume_state.h"

namespace tindra {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();
constexpr bool up = true;
constexpr bool down = false;
constexpr bool fine = true;
constexpr bool coarse = false;

TEST(LevelStepper, OnGridStepsToTheNeighbour) {
  EXPECT_EQ(LevelStepper::step(up, coarse, 0.5), 9.0 / 16);
  EXPECT_EQ(LevelStepper::step(down, coarse, 0.5), 7.0 / 16);
  EXPECT_EQ(LevelStepper::step(up, fine, 0.5), 33.0 / 64);
  EXPECT_EQ(LevelStepper::step(down, fine, 0.5), 31.0 / 64);
  // Within a quarter step of a grid point counts as on it, in both directions.
  EXPECT_EQ(LevelStepper::step(up, coarse, 0.51), 9.0 / 16);    // s = 8.16
  EXPECT_EQ(LevelStepper::step(down, coarse, 0.49), 7.0 / 16);  // s = 7.84
  EXPECT_EQ(LevelStepper::step(up, coarse, 8.25 / 16), 9.0 / 16);
  EXPECT_EQ(LevelStepper::step(down, coarse, 7.75 / 16), 7.0 / 16);
}

TEST(LevelStepper, BetweenGridPointsMovesToTheNextPointAhead) {
  // s = 8.48: up lands on 9, not back on 8 and not on 10.
  EXPECT_EQ(LevelStepper::step(up, coarse, 0.53), 9.0 / 16);
  EXPECT_EQ(LevelStepper::step(down, coarse, 0.53), 8.0 / 16);
  // Just past the tolerance is between points.
  EXPECT_EQ(LevelStepper::step(up, coarse, 8.26 / 16), 9.0 / 16);
  EXPECT_EQ(LevelStepper::step(down, coarse, 8.26 / 16), 8.0 / 16);
  EXPECT_EQ(LevelStepper::step(down, coarse, 7.74 / 16), 7.0 / 16);
  EXPECT_EQ(LevelStepper::step(down, coarse, 0.03), 0.0);    // s = 0.48
  EXPECT_EQ(LevelStepper::step(up, fine, 0.53), 35.0 / 64);  // s = 33.92 is on 34
  EXPECT_EQ(LevelStepper::step(up, fine, 0.5 + 0.5 / 64), 33.0 / 64);
}

TEST(LevelStepper, ClampsAtBothEndsAndTreatsBadInputAsZero) {
  EXPECT_EQ(LevelStepper::step(up, coarse, 1.0), 1.0);
  EXPECT_EQ(LevelStepper::step(up, coarse, 0.99), 1.0);  // s = 15.84 rounds to 16
  EXPECT_EQ(LevelStepper::step(up, coarse, 3.0), 1.0);
  EXPECT_EQ(LevelStepper::step(down, coarse, 3.0), 15.0 / 16);
  EXPECT_EQ(LevelStepper::step(down, coarse, 0.0), 0.0);
  EXPECT_EQ(LevelStepper::step(down, fine, 1.0 / 64), 0.0);
  for (double bad : {nan, -0.2, inf, -inf}) {
    EXPECT_EQ(LevelStepper::step(up, coarse, bad), 1.0 / 16) << bad;
    EXPECT_EQ(LevelStepper::step(up, fine, bad), 1.0 / 64) << bad;
    EXPECT_EQ(LevelStepper::step(down, coarse, bad), 0.0) << bad;
  }
}

TEST(VolumeState, UpUnmutesDownKeepsMute) {
  const VolumeState muted{0.5, true};
  EXPECT_EQ(muted.applying(VolumeAction::up(false)), (VolumeState{9.0 / 16, false}));
  EXPECT_EQ(muted.applying(VolumeAction::down(false)), (VolumeState{7.0 / 16, true}));
  EXPECT_EQ(muted.applying(VolumeAction::down(true)), (VolumeState{31.0 / 64, true}));
  EXPECT_EQ(muted.applying(VolumeAction::toggleMute()), (VolumeState{0.5, false}));
  EXPECT_EQ((VolumeState{0.5, false}).applying(VolumeAction::toggleMute()),
            (VolumeState{0.5, true}));
  EXPECT_NE(VolumeAction::up(true), VolumeAction::up(false));
  EXPECT_NE(VolumeAction::up(false), VolumeAction::down(false));
}

TEST(PendingLevelStepper, TrustsTheWrittenLevelForOneSecondOrWhileClose) {
  PendingLevelStepper pending;
  EXPECT_EQ(pending.base(0.3, 5), 0.3);  // nothing written yet
  EXPECT_EQ(pending.step(up, coarse, 0.5, 10.0), 9.0 / 16);
  EXPECT_EQ(pending.pendingLevel(), 9.0 / 16);
  EXPECT_EQ(pending.pendingAt(), 10.0);

  EXPECT_EQ(pending.base(0.5, 10.0), 9.0 / 16);
  EXPECT_EQ(pending.base(0.5, 10.4), 9.0 / 16);
  EXPECT_EQ(pending.base(0.0, 10.999), 9.0 / 16);
  EXPECT_EQ(pending.base(0.0, 11.0), 0.0);  // exactly one second is no longer recent
  EXPECT_EQ(pending.base(0.5, 12.0), 0.5);
  EXPECT_EQ(pending.base(0.55, 12.0), 9.0 / 16);  // within one coarse step
  // Exactly one coarse step away is not close.
  EXPECT_EQ(pending.base(0.5625 - 0.0625, 12.0), 0.5);
  EXPECT_EQ(pending.base(0.5625 + 0.0625, 12.0), 0.625);
}

TEST(PendingLevelStepper, BackwardsTimeIsNotRecentAndBadReadsAreNotClose) {
  PendingLevelStepper pending;
  pending.record(0.75, 10.0);
  EXPECT_EQ(pending.base(0.2, 9.9), 0.2);
  EXPECT_EQ(pending.base(0.7, 9.9), 0.75);  // closeness still holds
  EXPECT_EQ(pending.base(0.2, nan), 0.2);
  EXPECT_TRUE(std::isnan(pending.base(nan, 20)));  // stepping then treats it as 0

  // Fast presses build on what was written, not on the lagging read.
  PendingLevelStepper presses;
  presses.step(up, coarse, 0.25, 0.0);
  presses.step(up, coarse, 0.25, 0.1);
  EXPECT_EQ(presses.step(up, coarse, 0.25, 0.2), 7.0 / 16);
  EXPECT_EQ(presses.pendingAt(), 0.2);
}

}  // namespace
}  // namespace tindra
