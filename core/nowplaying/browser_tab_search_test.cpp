#include "nowplaying/browser_tab_search.h"

#include <gtest/gtest.h>

#include "nowplaying/browser_tab_title.h"

namespace tindra {
namespace {

using BrowserTabSearch::Choice;
using BrowserTabSearch::Tab;

constexpr std::string_view watch = "https://www.youtube.com/watch?v=1";
constexpr std::string_view music = "https://music.youtube.com/watch?v=2";

TEST(BrowserTabSearchTest, FirstMediaTabUnlessALaterOnePlays) {
  using Windows = std::vector<std::vector<Tab>>;
  // A playing tab in a later window beats a paused one found first.
  EXPECT_EQ(BrowserTabSearch::choose(
                Windows{{{"https://example.com", "playing,1,2"}, {watch, "paused,1,2"}},
                        {{music, "playing,5,9"}, {watch, "playing,0,1"}}}),
            (Choice{1, 0}));
  // No tab plays: the first media tab across all windows.
  EXPECT_EQ(BrowserTabSearch::choose(
                Windows{{{"https://example.com", ""}}, {{watch, "paused,0,1"}}, {{music, ""}}}),
            (Choice{1, 0}));
  // Within one window, the second tab wins when only it plays.
  EXPECT_EQ(BrowserTabSearch::choose(Windows{{{watch, "paused,0,1"}, {music, "playing,0,1"}}}),
            (Choice{0, 1}));
  EXPECT_EQ(
      BrowserTabSearch::choose(Windows{{{"http://www.youtube.com/watch?v=1", "playing"}}, {}}),
      std::nullopt)
      << "only secure watch pages count";
}

TEST(BrowserTabSearchTest, MediaURLsAreTheFourWatchPageHosts) {
  EXPECT_TRUE(BrowserTabSearch::isMediaURL("https://m.youtube.com/watch?v=x"));
  EXPECT_TRUE(BrowserTabSearch::isMediaURL("https://youtube.com/watch?v=x"));
  EXPECT_FALSE(BrowserTabSearch::isMediaURL("https://www.youtube.com/"));
  EXPECT_FALSE(BrowserTabSearch::isMediaURL("https://www.youtube.com.evil.io/watch"));
}

TEST(BrowserTabTitleTest, DecorationIsStrippedAndSiteNamesAreNoTitle) {
  EXPECT_EQ(BrowserTabTitle::trackTitle("(12) Song - YouTube"), "Song");
  EXPECT_EQ(BrowserTabTitle::trackTitle("(99+) Song - YouTube Music "), "Song");
  EXPECT_EQ(BrowserTabTitle::trackTitle("Song - YouTube - YouTube"), "Song - YouTube")
      << "one suffix only";
  EXPECT_EQ(BrowserTabTitle::trackTitle("(live) Song"), "(live) Song");
  EXPECT_EQ(BrowserTabTitle::trackTitle("YouTube Music"), std::nullopt);
  EXPECT_EQ(BrowserTabTitle::trackTitle("(3) YouTube"), std::nullopt);
  EXPECT_EQ(BrowserTabTitle::trackTitle(" \t"), std::nullopt);
}

}  // namespace
}  // namespace tindra
