#include "power/battery_status.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "power/battery_threshold.h"

namespace tindra {
namespace {

TEST(BatteryStatus, PercentIsClamped) {
  EXPECT_EQ(BatteryStatus(-4).percent, 0);
  EXPECT_EQ(BatteryStatus(100).percent, 100);
  EXPECT_EQ(BatteryStatus(101).percent, 100);
}

TEST(BatteryStatus, SymbolBucketsAndPowerStates) {
  const std::pair<int, std::string_view> buckets[] = {
      {0, "battery.0percent"},    {12, "battery.0percent"},  {13, "battery.25percent"},
      {37, "battery.25percent"},  {38, "battery.50percent"}, {62, "battery.50percent"},
      {63, "battery.75percent"},  {87, "battery.75percent"}, {88, "battery.100percent"},
      {100, "battery.100percent"}};
  for (const auto& [percent, symbol] : buckets) {
    EXPECT_EQ(BatteryStatus(percent).symbolName(), symbol) << percent;
  }
  EXPECT_EQ(BatteryStatus(5, true).symbolName(), "powerplug.fill");
  // Charging wins, even when the system says it charges on battery.
  EXPECT_EQ(BatteryStatus(5, true, true).symbolName(), "battery.100percent.bolt");
  EXPECT_EQ(BatteryStatus(5, false, true).symbolName(), "battery.100percent.bolt");
}

TEST(BatteryThreshold, ClampsToRange) {
  static_assert(BatteryThreshold::clamped(2) == 5);
  static_assert(BatteryThreshold::clamped(5) == 5);
  static_assert(BatteryThreshold::clamped(50) == 50);
  static_assert(BatteryThreshold::clamped(80) == 50);
  EXPECT_EQ(BatteryThreshold::clamped(INT64_MIN), 5);
}

}  // namespace
}  // namespace tindra
