#include "activity/window_placement.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(WindowPlacement, CentresOnWholePointsRoundingHalfAwayFromZero) {
  EXPECT_EQ(WindowPlacement::centredOrigin({100, 50}, {0, 0, 1920, 1080}), (Point{910, 515}));
  EXPECT_EQ(WindowPlacement::centredOrigin({50, 50}, {0, 0, 101, 101}), (Point{26, 26}));
  // Left of and below the main display the halves round away from zero too.
  EXPECT_EQ(WindowPlacement::centredOrigin({50, 50}, {-101, -101, 101, 101}), (Point{-76, -76}));
}

TEST(WindowPlacement, AnOversizedWindowKeepsTheLeftAndTopEdges) {
  EXPECT_EQ(WindowPlacement::centredOrigin({300, 200}, {0, 0, 200, 100}), (Point{0, -100}));
  EXPECT_EQ(WindowPlacement::centredOrigin({300, 200}, {1000, 500, 200, 100}), (Point{1000, 400}));
}

}  // namespace
}  // namespace tindra
