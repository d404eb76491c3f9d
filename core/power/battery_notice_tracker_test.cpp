#include "power/battery_notice_tracker.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace tindra {
namespace {

using Settings = BatteryNoticeTracker::Settings;
using Kind = BatteryNotice::Kind;

BatteryStatus onBattery(int percent) {
  return BatteryStatus(percent);
}
BatteryStatus pluggedIn(int percent) {
  return BatteryStatus(percent, true, true);
}

// The kind of notice each reading gives, none as an empty optional.
std::vector<std::optional<Kind>> kinds(BatteryNoticeTracker& tracker,
                                       const std::vector<BatteryStatus>& readings,
                                       const Settings& settings = Settings()) {
  std::vector<std::optional<Kind>> result;
  for (const BatteryStatus& reading : readings) {
    const std::optional<BatteryNotice> notice = tracker.observe(reading, settings);
    result.push_back(notice ? std::optional(notice->kind) : std::nullopt);
  }
  return result;
}

TEST(BatteryNoticeTracker, LowWarningRearmsOnlyTwoPointsAboveThreshold) {
  BatteryNoticeTracker tracker;
  const std::vector<BatteryStatus> readings{onBattery(25), onBattery(20), onBattery(19),
                                            onBattery(21), onBattery(22), onBattery(23),
                                            onBattery(20)};
  EXPECT_EQ(kinds(tracker, readings),
            (std::vector<std::optional<Kind>>{std::nullopt, Kind::low, std::nullopt, std::nullopt,
                                              std::nullopt, std::nullopt, Kind::low}));
  EXPECT_TRUE(tracker.lowAlerted);
  EXPECT_EQ(tracker.last, onBattery(20));
}

TEST(BatteryNoticeTracker, PluggingInRearmsAndLowBeatsUnplugged) {
  BatteryNoticeTracker tracker;
  EXPECT_EQ(
      kinds(tracker, {onBattery(15), pluggedIn(15), onBattery(15), pluggedIn(14)}),
      (std::vector<std::optional<Kind>>{Kind::low, Kind::pluggedIn, Kind::low, Kind::pluggedIn}));
  // The low notice carries the reading that caused it and stays up longer.
  BatteryNoticeTracker fresh;
  const std::optional<BatteryNotice> notice = fresh.observe(onBattery(3), Settings());
  EXPECT_EQ(notice, BatteryNotice::low(onBattery(3)));
  EXPECT_EQ(notice->duration(), 8.0);
  EXPECT_EQ(BatteryNotice::unplugged(onBattery(50)).duration(), 4.0);
}

TEST(BatteryNoticeTracker, FirstReadingIsNeverAPowerChange) {
  BatteryNoticeTracker tracker;
  EXPECT_EQ(tracker.observe(pluggedIn(50), Settings()), std::nullopt);
  EXPECT_EQ(tracker.observe(onBattery(50), Settings()), BatteryNotice::unplugged(onBattery(50)));
  BatteryNoticeTracker other;
  EXPECT_EQ(other.observe(onBattery(50), Settings()), std::nullopt);
  EXPECT_EQ(other.observe(pluggedIn(50), Settings()), BatteryNotice::pluggedIn(pluggedIn(50)));
  // Charging state alone is not a power change.
  EXPECT_EQ(other.observe(BatteryStatus(50, true, false, true), Settings()), std::nullopt);
}

TEST(BatteryNoticeTracker, SwitchedOffNoticesStayQuietButStateMoves) {
  const Settings quiet(false, false, false, 20);
  BatteryNoticeTracker tracker;
  EXPECT_EQ(kinds(tracker, {onBattery(30), pluggedIn(30), onBattery(10), onBattery(9)}, quiet),
            (std::vector<std::optional<Kind>>(4)));
  EXPECT_FALSE(tracker.lowAlerted);
  // Turning the warning on later gives it at the next reading at or below the threshold.
  EXPECT_EQ(tracker.observe(onBattery(9), Settings()), BatteryNotice::low(onBattery(9)));
  // With the warning off, unplugging at a low level gives the plain unplugged notice.
  BatteryNoticeTracker unplugging;
  unplugging.observe(pluggedIn(10), quiet);
  EXPECT_EQ(unplugging.observe(onBattery(10), Settings(true, true, false)),
            BatteryNotice::unplugged(onBattery(10)));
}

TEST(BatteryNoticeTracker, ThresholdIsClampedAndInclusive) {
  EXPECT_EQ(Settings(true, true, true, 80).lowThreshold, 50);
  EXPECT_EQ(Settings(true, true, true, -3).lowThreshold, 5);
  EXPECT_EQ(Settings(true, true, true, INT64_MAX).lowThreshold, 50);
  BatteryNoticeTracker tracker;
  EXPECT_EQ(kinds(tracker, {onBattery(51), onBattery(50)}, Settings(true, true, true, 80)),
            (std::vector<std::optional<Kind>>{std::nullopt, Kind::low}));
  // A threshold written past the constructor is still kept within range.
  Settings settings;
  settings.lowThreshold = 1000;
  BatteryNoticeTracker other;
  EXPECT_EQ(other.observe(onBattery(51), settings), std::nullopt);
  EXPECT_EQ(other.observe(onBattery(50), settings), BatteryNotice::low(onBattery(50)));
}

}  // namespace
}  // namespace tindra
