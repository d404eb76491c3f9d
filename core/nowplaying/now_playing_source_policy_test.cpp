#include "nowplaying/now_playing_source_policy.h"

#include <gtest/gtest.h>

#include "nowplaying/now_playing_paused_linger.h"
#include "nowplaying/now_playing_source_kind.h"
#include "settings/settings_keys.h"

namespace tindra {
namespace {

using NowPlayingSourcePolicy::shouldShowFallbackNotice;
using NowPlayingSourcePolicy::usesFallback;

TEST(NowPlayingSourcePolicyTest, OnlyAPassedProbeKeepsTheAdapter) {
  EXPECT_FALSE(usesFallback(AdapterProbeResult::passed()));
  EXPECT_TRUE(usesFallback(AdapterProbeResult::failed(0)));
  EXPECT_TRUE(usesFallback(AdapterProbeResult::notBundled()));
  EXPECT_TRUE(usesFallback(AdapterProbeResult::timedOut()));
  EXPECT_TRUE(usesFallback(AdapterProbeResult::launchFailed()));
  EXPECT_NE(AdapterProbeResult::failed(1), AdapterProbeResult::failed(2));
  EXPECT_EQ(AdapterProbeResult::timedOut(),
            (AdapterProbeResult{AdapterProbeResult::Kind::timedOut, 9}));
}

TEST(NowPlayingSourcePolicyTest, FallbackNoticeShowsOncePerSystemVersion) {
  const auto failed = AdapterProbeResult::failed(1);
  EXPECT_FALSE(shouldShowFallbackNotice(AdapterProbeResult::passed(), "15.1", std::nullopt));
  EXPECT_TRUE(shouldShowFallbackNotice(failed, "15.1", std::nullopt));
  EXPECT_FALSE(shouldShowFallbackNotice(failed, "15.1", "15.1"));
  EXPECT_TRUE(shouldShowFallbackNotice(failed, "15.2", "15.1"));
  EXPECT_TRUE(shouldShowFallbackNotice(failed, "15.1", ""));
}

TEST(NowPlayingSourcePolicyTest, StoredNamesRoundTripAndUnknownOnesAreRefused) {
  for (auto kind : allCases<NowPlayingSourceKind>()) {
    EXPECT_EQ(enumFromRaw<NowPlayingSourceKind>(rawValue(kind)), kind);
  }
  for (auto mode : allCases<NowPlayingSourceMode>()) {
    EXPECT_EQ(enumFromRaw<NowPlayingSourceMode>(rawValue(mode)), mode);
  }
  EXPECT_EQ(rawValue(NowPlayingPausedLinger::short_), "short");
  EXPECT_EQ(enumFromRaw<NowPlayingPausedLinger>("untilResumed"),
            NowPlayingPausedLinger::untilResumed);
  EXPECT_EQ(enumFromRaw<NowPlayingPausedLinger>("long"), NowPlayingPausedLinger::long_);
  EXPECT_FALSE(enumFromRaw<NowPlayingPausedLinger>("Short"));
  EXPECT_FALSE(enumFromRaw<NowPlayingSourceMode>("auto"));

  // The setting's default is the enumeration's.
  EXPECT_EQ(defaultNowPlayingPausedLinger, settings::nowPlayingPausedLinger.defaultValue);
}

}  // namespace
}  // namespace tindra
