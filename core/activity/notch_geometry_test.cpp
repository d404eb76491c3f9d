#include "activity/notch_geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace tindra {
namespace {

using Kind = NotchGeometry::Kind;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

ScreenDescriptor builtIn(double leftWidth, double rightWidth) {
  return {.frame = {0, 0, 1512, 982},
          .visibleFrame = {0, 0, 1512, 950},
          .safeAreaTopInset = 32,
          .auxiliaryTopLeftArea = Rect{0, 950, leftWidth, 32},
          .auxiliaryTopRightArea = Rect{1512 - rightWidth, 950, rightWidth, 32}};
}

ScreenDescriptor external(Rect frame, double menuBar) {
  return {.frame = frame, .visibleFrame = {frame.x, frame.y, frame.width, frame.height - menuBar}};
}

Rect drawn(const ScreenDescriptor& screen, std::optional<double> height, double width) {
  const auto g = NotchGeometry::forScreen(screen, height, width);
  EXPECT_EQ(g.kind, Kind::simulated);
  return g.notchRect;
}

TEST(NotchGeometry, HardwareNotchLiesBetweenTheAuxiliaryAreas) {
  const auto g = NotchGeometry::forScreen(builtIn(700, 700), std::nullopt, 190);
  EXPECT_EQ(g.kind, Kind::hardware);
  EXPECT_EQ(g.screenFrame, (Rect{0, 0, 1512, 982}));
  EXPECT_EQ(g.notchRect, (Rect{700, 950, 112, 32}));
  auto shifted = builtIn(700, 700);
  shifted.frame = {-1512, 200, 1512, 982};
  EXPECT_EQ(NotchGeometry::forScreen(shifted, 32, 190).notchRect, (Rect{-812, 1150, 112, 32}));
}

TEST(NotchGeometry, FallsBackToADrawnNotchWithoutAUsableHardwareOne) {
  auto noInset = builtIn(700, 700);
  noInset.safeAreaTopInset = 0;
  auto oneArea = builtIn(700, 700);
  oneArea.auxiliaryTopRightArea.reset();
  // 756 + 756 leaves exactly nothing between the areas.
  for (const auto& screen : {builtIn(756, 756), builtIn(800, 800), noInset, oneArea}) {
    EXPECT_EQ(drawn(screen, std::nullopt, 190), (Rect{661, 950, 190, 32}));
  }
}

TEST(NotchGeometry, DrawnNotchIsClampedToTheDisplay) {
  const auto screen = external({1512, 0, 1920, 1080}, 25);
  EXPECT_EQ(drawn(screen, std::nullopt, 200), (Rect{2372, 1055, 200, 25}));
  EXPECT_EQ(drawn(screen, 40, 200).height, 40);
  for (double unusable : {nan, 0.0, -3.0}) EXPECT_EQ(drawn(screen, unusable, 200).height, 25);
  EXPECT_EQ(drawn(external({0, 0, 1920, 1080}, 0), std::nullopt, 200).height, 24);  // no menu bar
  EXPECT_EQ(drawn(external({0, 0, 300, 20}, 0), 32, 200), (Rect{50, 0, 200, 20}));
  EXPECT_EQ(drawn(screen, std::nullopt, 0).width, 1);
  EXPECT_EQ(drawn(screen, std::nullopt, nan).width, 1);
  EXPECT_EQ(drawn(screen, std::nullopt, 5000), (Rect{1512, 1055, 1920, 25}));
}

}  // namespace
}  // namespace tindra
