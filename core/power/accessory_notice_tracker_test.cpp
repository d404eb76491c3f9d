#include "power/accessory_notice_tracker.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Kind = AccessoryNotice::Kind;

BluetoothAccessory headset(std::optional<int> level, std::string address = "aa:bb:cc:dd:ee:01") {
  BluetoothAccessory accessory;
  accessory.name = "Headset";
  accessory.address = std::move(address);
  accessory.kind = BluetoothAccessoryKind::headphones;
  accessory.battery.main = level;
  return accessory;
}

std::vector<Kind> kinds(const std::vector<AccessoryNotice>& notices) {
  std::vector<Kind> result;
  for (const auto& notice : notices) result.push_back(notice.kind);
  return result;
}

TEST(AccessoryNoticeTrackerTest, ConnectAndDisconnectButNotForWhatWasThereAtStart) {
  AccessoryNoticeTracker tracker;
  const AccessoryNoticeTracker::Settings settings;
  EXPECT_TRUE(tracker.observe({headset(80)}, settings).empty());  // already connected at start
  EXPECT_EQ(kinds(tracker.observe({}, settings)), std::vector{Kind::disconnected});
  const auto notices = tracker.observe({headset(15)}, settings);
  ASSERT_EQ(kinds(notices), std::vector{Kind::connected});  // low already: no separate warning
  EXPECT_EQ(notices.front().accessory.battery.main, 15);
  EXPECT_TRUE(tracker.observe({headset(15), headset(15)}, settings).empty());  // reported twice

  // A device without an address is known by its name; settings switch each notice off.
  BluetoothAccessory nameless = headset(50);
  nameless.address.reset();
  EXPECT_EQ(kinds(tracker.observe({headset(15), nameless}, settings)),
            std::vector{Kind::connected});
  AccessoryNoticeTracker::Settings quiet;
  quiet.connectNotice = quiet.disconnectNotice = false;
  EXPECT_TRUE(tracker.observe({headset(15, "aa:bb:cc:dd:ee:02")}, quiet).empty());
}

TEST(AccessoryNoticeTrackerTest, LowOncePerStepAndAgainOnlyAfterCharging) {
  AccessoryNoticeTracker tracker;
  const AccessoryNoticeTracker::Settings settings;
  tracker.observe({headset(30)}, settings);
  std::vector<Kind> seen;
  for (const int level : {25, 20, 19, 21, 12, 10, 9, 14}) {
    for (const auto& notice : tracker.observe({headset(level)}, settings)) {
      EXPECT_EQ(notice.part, AccessoryBatteryPart::main);
      seen.push_back(notice.kind);
    }
    if (level == 20) {
      EXPECT_EQ(seen.size(), 1u) << "at the threshold";
    }
    if (level == 10) {
      EXPECT_EQ(seen.size(), 2u) << "at 10 %";
    }
  }
  EXPECT_EQ(seen.size(), 2u);
  // Charged above 15 arms the 10 % step again; above 25 both.
  EXPECT_TRUE(tracker.observe({headset(16)}, settings).empty());
  EXPECT_EQ(kinds(tracker.observe({headset(10)}, settings)), std::vector{Kind::low});
  tracker.observe({headset(60)}, settings);
  EXPECT_EQ(kinds(tracker.observe({headset(20)}, settings)), std::vector{Kind::low});

  AccessoryNoticeTracker::Settings off;
  off.lowAlert = false;
  AccessoryNoticeTracker silent;
  silent.observe({headset(50)}, off);
  EXPECT_TRUE(silent.observe({headset(5)}, off).empty());
}

TEST(AccessoryNoticeTrackerTest, EachPartOfTrueEarbudsIsWarnedOnItsOwn) {
  AccessoryNoticeTracker tracker;
  BluetoothAccessory buds = headset(std::nullopt);
  buds.battery.left = 50;
  buds.battery.right = 50;
  buds.battery.caseLevel = 80;
  tracker.observe({buds}, {});
  buds.battery.left = 18;
  auto notices = tracker.observe({buds}, {});
  ASSERT_EQ(notices.size(), 1u);
  EXPECT_EQ(notices.front().part, AccessoryBatteryPart::left);
  buds.battery.right = 17;
  notices = tracker.observe({buds}, {});
  ASSERT_EQ(notices.size(), 1u);
  EXPECT_EQ(notices.front().part, AccessoryBatteryPart::right);
}

}  // namespace
}  // namespace tindra
