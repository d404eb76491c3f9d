#include "nowplaying/now_playing_activity_policy.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using NowPlayingActivityPolicy::event;

NowPlayingSnapshot track(bool playing) {
  NowPlayingSnapshot s;
  s.title = "Song";
  s.isPlaying = playing;
  return s;
}

TEST(NowPlayingActivityPolicyTest, PauseLingersOnceAndNothingPlayingEnds) {
  const auto began = [](std::optional<double> d) {
    return ActivityEvent::began(ActivityKind::nowPlaying, d);
  };
  const auto ended = ActivityEvent::ended(ActivityKind::nowPlaying);
  const auto linger = NowPlayingPausedLinger::long_;

  EXPECT_EQ(event(track(true), false, linger), began(std::nullopt));
  EXPECT_EQ(event(track(true), true, linger), began(std::nullopt));
  EXPECT_EQ(event(track(false), true, NowPlayingPausedLinger::short_), began(8.0));
  EXPECT_EQ(event(track(false), true, linger), began(30.0));
  EXPECT_EQ(event(track(false), true, NowPlayingPausedLinger::untilResumed), began(std::nullopt));
  EXPECT_FALSE(event(track(false), false, linger)) << "a second paused report restarts nothing";
  EXPECT_EQ(event(std::nullopt, false, linger), ended);
  EXPECT_EQ(event(std::nullopt, true, linger), ended);
}

}  // namespace
}  // namespace tindra
