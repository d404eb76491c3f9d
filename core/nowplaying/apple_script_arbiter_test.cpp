#include "nowplaying/apple_script_arbiter.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using AppleScriptArbiter::Report;
using Status = AppleScriptPlayerStatus;

Status track(std::string title, bool playing) {
  NowPlayingSnapshot snapshot;
  snapshot.title = std::move(title);
  snapshot.isPlaying = playing;
  return Status::playing(snapshot);
}

std::string pickedTitle(const std::vector<Report>& reports) {
  const auto picked = AppleScriptArbiter::pick(reports);
  return picked ? picked->title : "none";
}

TEST(AppleScriptArbiterTest, PlayingOutranksPausedThenPlayerOrderDecides) {
  EXPECT_EQ(pickedTitle({{AppleScriptPlayer::music, track("music", false)},
                         {AppleScriptPlayer::chrome, track("chrome", true)}}),
            "chrome");
  EXPECT_EQ(pickedTitle({{AppleScriptPlayer::chrome, track("chrome", true)},
                         {AppleScriptPlayer::spotify, track("spotify", true)}}),
            "spotify")
      << "order of the reports does not matter";
  EXPECT_EQ(pickedTitle({{AppleScriptPlayer::safari, track("safari", false)},
                         {AppleScriptPlayer::spotify, track("spotify", false)}}),
            "spotify");
  EXPECT_EQ(pickedTitle({{AppleScriptPlayer::music, Status::idle()},
                         {AppleScriptPlayer::spotify, Status::notRunning()},
                         {AppleScriptPlayer::safari, Status::unreadable()}}),
            "none");
}

}  // namespace
}  // namespace tindra
