#include "nowplaying/playback_time_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tindra {
namespace {

TEST(PlaybackTimeFormatTest, ElapsedRoundsDownAndSwitchesToHoursAtOneHour) {
  using PlaybackTimeFormat::elapsed;
  EXPECT_EQ(elapsed(9), "0:09");
  EXPECT_EQ(elapsed(59.999), "0:59");
  EXPECT_EQ(elapsed(65), "1:05");
  EXPECT_EQ(elapsed(3599.9), "59:59");
  EXPECT_EQ(elapsed(3600), "1:00:00");
  EXPECT_EQ(elapsed(3725), "1:02:05");
  EXPECT_EQ(elapsed(360000), "100:00:00");
  EXPECT_EQ(elapsed(-5), "0:00");
  EXPECT_EQ(elapsed(std::nan("")), "0:00");
  EXPECT_EQ(elapsed(std::numeric_limits<double>::infinity()), "0:00");
}

TEST(PlaybackTimeFormatTest, RemainingRoundsUpAndAlwaysCarriesTheSign) {
  using PlaybackTimeFormat::remaining;
  EXPECT_EQ(remaining(10.2, 70), "-1:00");
  EXPECT_EQ(remaining(10, 70), "-1:00");
  EXPECT_EQ(remaining(10.2, 3610.3), "-1:00:01");
  EXPECT_EQ(remaining(100, 50), "-0:00");
  EXPECT_EQ(remaining(std::nan(""), 50), "-0:00");
  EXPECT_EQ(remaining(0, std::numeric_limits<double>::infinity()), "-0:00");
}

}  // namespace
}  // namespace tindra
