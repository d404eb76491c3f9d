#include "activity/visibility_policy.h"

#include <gtest/gtest.h>

#include <vector>

namespace tindra {
namespace {

using Reason = NotchHideReason;
constexpr std::int32_t appPid = 500;
constexpr std::int32_t dockPid = 90;
const Rect screen{0, 0, 1920, 1080};

WindowSnapshot window(Rect bounds, std::int32_t owner = appPid, int layer = 0, double alpha = 1) {
  return {.ownerProcessIdentifier = owner, .layer = layer, .bounds = bounds, .alpha = alpha};
}

FrontmostApp app(std::optional<std::string> category = std::nullopt,
                 std::optional<std::string> bundle = "com.example.editor") {
  return {.bundleIdentifier = bundle, .processIdentifier = appPid, .category = category};
}

std::optional<Reason> reason(const VisibilitySettings& settings,
                             const std::optional<FrontmostApp>& frontmost,
                             const std::vector<WindowSnapshot>& windows) {
  return VisibilityPolicy::hideReason(settings, frontmost, windows, dockPid, screen);
}

Rect inset(Rect r, double by) {
  return {r.x + by, r.y + by, r.width - 2 * by, r.height - 2 * by};
}

TEST(VisibilityPolicy, FullScreenCoveringToleratesOneAndAHalfPoints) {
  const VisibilitySettings settings;
  EXPECT_EQ(reason(settings, app(), {window(screen)}), Reason::fullScreen);
  EXPECT_EQ(reason(settings, app(), {window(inset(screen, 1.5))}), Reason::fullScreen);
  EXPECT_EQ(reason(settings, app(), {window(inset(screen, 2))}), std::nullopt);
  // Not the app's, not on the application layer, or transparent: no.
  EXPECT_EQ(reason(settings, app(), {window(screen, 77)}), std::nullopt);
  EXPECT_EQ(reason(settings, app(), {window(screen, appPid, 3)}), std::nullopt);
  EXPECT_EQ(reason(settings, app(), {window(screen, appPid, 0, 0.01)}), std::nullopt);
  EXPECT_EQ(reason(settings, app(), {window(screen, appPid, 0, 0.011)}), Reason::fullScreen);
  EXPECT_EQ(reason({.hideInFullScreen = false}, app(), {window(screen)}), std::nullopt);
  EXPECT_EQ(reason(settings, std::nullopt, {window(screen)}), std::nullopt);
}

TEST(VisibilityPolicy, ReportedFullScreenFramesCountWhenAWindowMatchesOnThisScreen) {
  // A full-screen window that leaves the menu-bar strip free does not cover the screen.
  const Rect belowMenuBar{0, 0, 1920, 1048};
  FrontmostApp reported = app();
  reported.fullScreenWindowFrames = {belowMenuBar};
  const VisibilitySettings settings;
  EXPECT_EQ(reason(settings, app(), {window(belowMenuBar)}), std::nullopt);
  EXPECT_EQ(reason(settings, reported, {window(belowMenuBar)}), Reason::fullScreen);
  EXPECT_EQ(reason(settings, reported, {window(inset(belowMenuBar, 1.5))}), Reason::fullScreen);
  EXPECT_EQ(reason(settings, reported, {window(inset(belowMenuBar, 1.6))}), std::nullopt);
  // A frame whose midpoint is on the next display belongs to that display.
  const Rect nextDisplay{1920, 0, 1920, 1048};
  reported.fullScreenWindowFrames = {nextDisplay};
  EXPECT_EQ(reason(settings, reported, {window(nextDisplay)}), std::nullopt);
}

TEST(VisibilityPolicy, MissionControlComesFirstAndNeedsNoFrontmostApp) {
  const VisibilitySettings settings{.hideDuringMissionControl = true};
  const auto dockOverlay = window(screen, dockPid, 20);
  EXPECT_EQ(reason(settings, std::nullopt, {dockOverlay}), Reason::missionControl);
  EXPECT_EQ(reason(settings, app("public.app-category.games"), {dockOverlay, window(screen)}),
            Reason::missionControl);
  EXPECT_EQ(reason({}, std::nullopt, {dockOverlay}), std::nullopt);
  EXPECT_EQ(reason(settings, std::nullopt, {window(screen, dockPid, 0)}), std::nullopt);
  EXPECT_EQ(reason(settings, std::nullopt, {window(inset(screen, 2), dockPid, 20)}), std::nullopt);
  EXPECT_EQ(VisibilityPolicy::hideReason(settings, std::nullopt, std::vector{dockOverlay},
                                         std::nullopt, screen),
            std::nullopt);
}

TEST(VisibilityPolicy, GamesHideOnlyWhileFullScreen) {
  const auto game = app("public.app-category.action-games");
  EXPECT_EQ(reason({.hideInFullScreen = false}, game, {window(screen)}), Reason::game);
  EXPECT_EQ(reason({}, game, {window(inset(screen, 100))}), std::nullopt);
  EXPECT_EQ(reason({.hideForGames = false}, game, {window(screen)}), Reason::fullScreen);
  EXPECT_EQ(reason({.hideInFullScreen = false, .hideForGames = false}, game, {window(screen)}),
            std::nullopt);
}

TEST(VisibilityPolicy, TheUsersGameListMatchesWithoutRegardToCase) {
  VisibilitySettings settings{.hideInFullScreen = false};
  settings.gameBundleIdentifiers = {"com.King.Game"};
  EXPECT_EQ(reason(settings, app(std::nullopt, "COM.KING.game"), {window(screen)}), Reason::game);
  // Lower-cased the Unicode way: the Kelvin sign becomes "k".
  EXPECT_EQ(reason(settings, app(std::nullopt, "com.\u212Aing.game"), {window(screen)}),
            Reason::game);
  EXPECT_EQ(reason(settings, app(std::nullopt, "com.king.game2"), {window(screen)}), std::nullopt);
}

TEST(VisibilityPolicy, GamesCategoryCoversEverySubCategory) {
  for (const char* yes : {"public.app-category.games", "Public.App-Category.Puzzle-Games",
                          "PUBLIC.APP-CATEGORY.GAMES", "public.app-category.-games"}) {
    EXPECT_TRUE(VisibilityPolicy::isGamesCategory(yes)) << yes;
  }
  for (const char* no : {"public.app-category.games-tools", "public.app-category.productivity",
                         "com.vendor.action-games", "public.app-category-games", ""}) {
    EXPECT_FALSE(VisibilityPolicy::isGamesCategory(no)) << no;
  }
  EXPECT_FALSE(VisibilityPolicy::isGamesCategory(std::nullopt));
}

}  // namespace
}  // namespace tindra
