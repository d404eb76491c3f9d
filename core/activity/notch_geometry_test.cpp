#include "activity/notch_geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace tindra {
namespace {

using Kind = NotchGeometry::Kind;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

ScreenDescriptor builtIn(double leftWidth, double rightWidth) {
  const Rect frame{0, 0, 1512, 982};
  return {.frame = frame,
          .visibleFrame = {0, 0, 1512, 950},
          .safeAreaTopInset = 32,
          .auxiliaryTopLeftArea = Rect{0, 950, leftWidth, 32},
          .auxiliaryTopRightArea = Rect{1512 - rightWidth, 950, rightWidth, 32}};
}

ScreenDescriptor external(Rect frame, double menuBar) {
  Rect visible = frame;
  visible.height -= menuBar;
  return {.frame = frame, .visibleFrame = visible};
}

TEST(NotchGeometry, HardwareNotchLiesBetweenTheAuxiliaryAreas) {
  const auto g = NotchGeometry::forScreen(builtIn(700, 700), std::nullopt, 190);
  EXPECT_EQ(g.kind, Kind::hardware);
  EXPECT_EQ(g.screenFrame, (Rect{0, 0, 1512, 982}));
  EXPECT_EQ(g.notchRect, (Rect{700, 950, 112, 32}));
  // Positioned from the frame's own origin on a display that is not at 0, 0.
  auto shifted = builtIn(700, 700);
  shifted.frame.x = -1512;
  shifted.frame.y = 200;
  EXPECT_EQ(NotchGeometry::forScreen(shifted, 32, 190).notchRect, (Rect{-812, 1150, 112, 32}));
}

TEST(NotchGeometry, FallsBackToADrawnNotchWithoutAUsableHardwareOne) {
  auto noRoom = builtIn(756, 756);  // leaves exactly nothing between them
  auto overlapping = builtIn(800, 800);
  auto noInset = builtIn(700, 700);
  noInset.safeAreaTopInset = 0;
  auto oneArea = builtIn(700, 700);
  oneArea.auxiliaryTopRightArea.reset();
  for (const auto& screen : {noRoom, overlapping, noInset, oneArea}) {
    const auto g = NotchGeometry::forScreen(screen, std::nullopt, 190);
    EXPECT_EQ(g.kind, Kind::simulated);
    EXPECT_EQ(g.notchRect, (Rect{661, 950, 190, 32}));
  }
}

TEST(NotchGeometry, DrawnNotchHeightFollowsTheMenuBarUnlessGiven) {
  const auto screen = external({1512, 0, 1920, 1080}, 25);
  EXPECT_EQ(NotchGeometry::forScreen(screen, std::nullopt, 200).notchRect,
            (Rect{2372, 1055, 200, 25}));
  EXPECT_EQ(NotchGeometry::forScreen(screen, 40, 200).notchRect.height, 40);
  for (double unusable : {nan, 0.0, -3.0}) {
    EXPECT_EQ(NotchGeometry::forScreen(screen, unusable, 200).notchRect.height, 25);
  }
  // No menu bar at the top: 24 points.
  EXPECT_EQ(
      NotchGeometry::forScreen(external({0, 0, 1920, 1080}, 0), std::nullopt, 200).notchRect.height,
      24);
  // Never taller than the display.
  EXPECT_EQ(NotchGeometry::forScreen(external({0, 0, 300, 20}, 0), 32, 200).notchRect,
            (Rect{50, 0, 200, 20}));
}

TEST(NotchGeometry, DrawnNotchWidthIsClampedToOnePointAndTheDisplay) {
  const auto screen = external({0, 0, 1920, 1080}, 25);
  EXPECT_EQ(NotchGeometry::forScreen(screen, std::nullopt, 0).notchRect.width, 1);
  EXPECT_EQ(NotchGeometry::forScreen(screen, std::nullopt, nan).notchRect.width, 1);
  EXPECT_EQ(NotchGeometry::forScreen(screen, std::nullopt, 5000).notchRect,
            (Rect{0, 1055, 1920, 25}));
}

}  // namespace
}  // namespace tindra
