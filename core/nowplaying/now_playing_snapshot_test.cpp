#include "nowplaying/now_playing_snapshot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <unordered_set>

namespace tindra {
namespace {

NowPlayingSnapshot playing(double elapsed, double at) {
  NowPlayingSnapshot s;
  s.title = "Song";
  s.isPlaying = true;
  s.playbackRate = 1;
  s.duration = 200;
  s.elapsed = elapsed;
  s.elapsedTimestamp = at;
  return s;
}

TEST(NowPlayingSnapshotTest, PositionAdvancesOnlyWhilePlayingAndStaysWithinTrack) {
  NowPlayingSnapshot s = playing(10, 1000);
  EXPECT_DOUBLE_EQ(*s.position(1005), 15);
  EXPECT_DOUBLE_EQ(*s.position(990), 10) << "a sample from the future never moves back";
  EXPECT_DOUBLE_EQ(*s.position(5000), 200) << "clamped to the duration";

  s.playbackRate = 2;
  EXPECT_DOUBLE_EQ(*s.position(1005), 20);
  s.playbackRate = std::numeric_limits<double>::infinity();
  EXPECT_DOUBLE_EQ(*s.position(1005), 10) << "a non-finite rate does not extrapolate";

  NowPlayingSnapshot paused = playing(10, 1000);
  paused.isPlaying = false;
  paused.playbackRate = 1;  // a stale rate must not move a paused track
  EXPECT_DOUBLE_EQ(*paused.position(1100), 10);

  NowPlayingSnapshot unstamped = playing(250, 0);
  unstamped.elapsedTimestamp.reset();
  EXPECT_DOUBLE_EQ(*unstamped.position(1e9), 200);
  unstamped.elapsed = -5;
  EXPECT_DOUBLE_EQ(*unstamped.position(0), 0);
  unstamped.duration.reset();
  unstamped.elapsed = 1e6;
  EXPECT_DOUBLE_EQ(*unstamped.position(0), 1e6) << "no duration, no upper clamp";

  NowPlayingSnapshot none = playing(0, 0);
  none.elapsed.reset();
  EXPECT_FALSE(none.position(10));
  none.elapsed = std::nan("");
  EXPECT_FALSE(none.position(10));
}

TEST(NowPlayingSnapshotTest, EquivalenceIgnoresSamplingWithinTolerance) {
  const NowPlayingSnapshot a = playing(10, 1000);
  EXPECT_TRUE(a.isEquivalent(playing(10.9, 1000), 1001, 1.0));
  EXPECT_FALSE(a.isEquivalent(playing(11.1, 1000), 1001, 1.0));
  EXPECT_TRUE(a.isEquivalent(playing(15, 1005), 1010, 0.0)) << "same position, other sample";

  NowPlayingSnapshot other = playing(10, 1000);
  other.artist = "Someone";
  EXPECT_FALSE(a.isEquivalent(other, 1000, 1.0));

  NowPlayingSnapshot noPosition = playing(10, 1000);
  noPosition.elapsed.reset();
  EXPECT_FALSE(a.isEquivalent(noPosition, 1000, 1.0));
  EXPECT_TRUE(noPosition.isEquivalent(noPosition, 1000, 0.0));
}

TEST(NowPlayingSnapshotTest, ArtworkComparesContentNotSharing) {
  using Artwork = NowPlayingSnapshot::Artwork;
  EXPECT_EQ(Artwork::embedded({1, 2, 3}), Artwork::embedded({1, 2, 3}));
  EXPECT_NE(Artwork::embedded({1, 2, 3}), Artwork::embedded({1, 2}));
  EXPECT_EQ(Artwork::remote("https://a/b"), Artwork::remote("https://a/b"));
  EXPECT_NE(Artwork::remote("https://a/b"), Artwork::remote("https://a/c"));
  EXPECT_NE(Artwork::remote(""), Artwork::embedded({}));
  EXPECT_EQ(*Artwork::embedded({7}).embeddedBytes(), std::vector<std::uint8_t>{7});
  EXPECT_EQ(Artwork::embedded({7}).remoteURL(), nullptr);
}

TEST(NowPlayingSnapshotTest, IdentityTellsAbsentFromEmptyAndIgnoresTheParent) {
  NowPlayingSnapshot s = playing(0, 0);
  s.bundleIdentifier = "app";
  s.parentBundleIdentifier = "parent";
  s.artist = "A";
  const TrackIdentity identity = s.identity();
  EXPECT_EQ(identity, (TrackIdentity{"app", "Song", "A", std::nullopt}));

  const TrackIdentity absentArtist{"app", "Song", std::nullopt, std::nullopt};
  const TrackIdentity emptyArtist{"app", "Song", "", std::nullopt};
  const TrackIdentity shifted{"app", "Song", std::nullopt, ""};
  EXPECT_NE(absentArtist, emptyArtist);
  std::unordered_set<TrackIdentity> set{identity, absentArtist, emptyArtist, shifted};
  EXPECT_EQ(set.size(), 4u);
  EXPECT_NE(hashValue(absentArtist), hashValue(emptyArtist));
  EXPECT_NE(hashValue(emptyArtist), hashValue(shifted));
  EXPECT_EQ(hashValue(identity), hashValue(s.identity()));
}

TEST(NowPlayingCapabilitiesTest, SixBitsCoverEveryCommand) {
  const NowPlayingCapabilities all = NowPlayingCapabilities::all();
  EXPECT_EQ(all, NowPlayingCapabilities::playPause() | NowPlayingCapabilities::nextTrack() |
                     NowPlayingCapabilities::previousTrack() | NowPlayingCapabilities::seek() |
                     NowPlayingCapabilities::shuffle() | NowPlayingCapabilities::repeat());
  for (const NowPlayingCommand& command :
       {NowPlayingCommand::seek(1), NowPlayingCommand::setShuffle(ShuffleMode::albums),
        NowPlayingCommand::setRepeat(RepeatMode::all), NowPlayingCommand::play(),
        NowPlayingCommand::pause(), NowPlayingCommand::togglePlayPause(),
        NowPlayingCommand::nextTrack(), NowPlayingCommand::previousTrack()}) {
    EXPECT_TRUE(all.allows(command));
    EXPECT_FALSE(NowPlayingCapabilities{}.allows(command));
  }
  const NowPlayingCapabilities playOnly = NowPlayingCapabilities::playPause();
  EXPECT_TRUE(playOnly.allows(NowPlayingCommand::togglePlayPause()));
  EXPECT_FALSE(playOnly.allows(NowPlayingCommand::nextTrack()));
  EXPECT_EQ(NowPlayingCommand::seek(1.5), NowPlayingCommand::seek(1.5));
  EXPECT_NE(NowPlayingCommand::seek(std::nan("")), NowPlayingCommand::seek(std::nan("")));
}

}  // namespace
}  // namespace tindra
