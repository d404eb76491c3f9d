#include "visibility/linux/toplevel_windows.h"

#include <gtest/gtest.h>

#include "activity/visibility_policy.h"

namespace tindra {
namespace {

const QRect left(0, 0, 1920, 1080);
const QRect right(1920, 0, 1280, 720);

bool noGames(const std::string&) {
  return false;
}

// What the policy makes of the windows on the display `screen`.
std::optional<NotchHideReason> reasonOn(const std::vector<ToplevelWindow>& toplevels,
                                        const QRect& screen,
                                        const ToplevelGameTest& isGame = noGames) {
  const ToplevelReading reading = readToplevels(toplevels, isGame);
  return VisibilityPolicy::hideReason(VisibilitySettings{}, reading.frontmost, reading.windows,
                                      std::nullopt,
                                      Rect{double(screen.x()), double(screen.y()),
                                           double(screen.width()), double(screen.height())});
}

TEST(ToplevelWindowsTest, AFullScreenWindowInFrontHidesTheNotchOnItsOutputOnly) {
  const std::vector<ToplevelWindow> windows{
      {.appId = "foot", .active = true, .fullScreen = true, .outputs = {left}},
      {.appId = "firefox", .outputs = {right}},
  };
  EXPECT_EQ(reasonOn(windows, left), NotchHideReason::fullScreen);
  EXPECT_EQ(reasonOn(windows, right), std::nullopt);
}

TEST(ToplevelWindowsTest, OnlyTheActiveApplicationsFullScreenWindowsCount) {
  // A video full screen on one display while the user works on the other.
  const std::vector<ToplevelWindow> windows{
      {.appId = "mpv", .fullScreen = true, .outputs = {right}},
      {.appId = "foot", .active = true, .outputs = {left}},
  };
  EXPECT_EQ(reasonOn(windows, right), std::nullopt);
  EXPECT_EQ(reasonOn(windows, left), std::nullopt);

  // Minimised, it is not in front, whatever the compositor says of its focus.
  const std::vector<ToplevelWindow> minimised{
      {.appId = "mpv", .active = true, .fullScreen = true, .minimized = true, .outputs = {right}},
  };
  EXPECT_EQ(reasonOn(minimised, right), std::nullopt);
}

TEST(ToplevelWindowsTest, AWindowWhoseFrameIsKnownCountsWhereItIsNotOnEveryOutputItTouches) {
  // KWin tells frames: a maximised window filling the display counts as full screen, as on X11;
  // a full-screen frame on the right display leaves the left one alone.
  const std::vector<ToplevelWindow> windows{
      {.appId = "org.kde.dolphin", .active = true, .outputs = {left}, .frame = left},
  };
  EXPECT_EQ(reasonOn(windows, left), NotchHideReason::fullScreen);
  const std::vector<ToplevelWindow> spanning{
      {.appId = "mpv",
       .active = true,
       .fullScreen = true,
       .outputs = {left, right},
       .frame = right},
  };
  EXPECT_EQ(reasonOn(spanning, left), std::nullopt);
  EXPECT_EQ(reasonOn(spanning, right), NotchHideReason::fullScreen);
}

TEST(ToplevelWindowsTest, AGameIsKnownByItsApplicationId) {
  const std::vector<ToplevelWindow> windows{
      {.appId = "supertuxkart", .active = true, .fullScreen = true, .outputs = {left}},
  };
  const auto isGame = [](const std::string& appId) { return appId == "supertuxkart"; };
  EXPECT_EQ(reasonOn(windows, left, isGame), NotchHideReason::game);
  const ToplevelReading reading = readToplevels(windows, isGame);
  ASSERT_TRUE(reading.frontmost);
  EXPECT_EQ(reading.frontmost->bundleIdentifier, "supertuxkart");
}

}  // namespace
}  // namespace tindra
