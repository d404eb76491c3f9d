#include "power/accessory_battery_merge.h"

#include <gtest/gtest.h>

#include <limits>

namespace tindra {
namespace {

TEST(AccessoryBatteryMerge, NewestReadingWinsPerPart) {
  using S = AccessoryBatterySource;
  AccessoryBatteryMerge merge;
  EXPECT_EQ(merge.merged(), AccessoryBattery{});
  EXPECT_TRUE(merge.record({.left = 80, .caseLevel = 40}, 100, S::systemProfiler));
  EXPECT_TRUE(merge.record({.left = 70, .right = 75}, 200, S::powerSources));
  EXPECT_EQ(merge.merged(), (AccessoryBattery{70, 75, 40, std::nullopt}));
  // An older reading of a source is ignored; a newer one replaces the whole reading.
  EXPECT_FALSE(merge.record({.left = 10}, 150, S::powerSources));
  EXPECT_TRUE(merge.record({.caseLevel = 35}, 300, S::powerSources));
  EXPECT_EQ(merge.merged(), (AccessoryBattery{80, std::nullopt, 35, std::nullopt}));
  // At equal times the power-source list wins.
  EXPECT_TRUE(merge.record({.caseLevel = 30}, 300, S::systemProfiler));
  EXPECT_EQ(merge.merged().caseLevel, 35);
  for (double time :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    EXPECT_FALSE(merge.record({.main = 1}, time, S::powerSources));
  }
  EXPECT_EQ(merge.readings.at(S::powerSources).time, 300);
}

}  // namespace
}  // namespace tindra
