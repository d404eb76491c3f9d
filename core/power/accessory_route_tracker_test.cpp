#include "power/accessory_route_tracker.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

const std::string buds = "aa:bb:cc:dd:ee:01";
const std::string speaker = "aa:bb:cc:dd:ee:02";
const std::optional<std::string> builtIn;  // no Bluetooth address

BluetoothAccessory accessory(const std::string& address) {
  return {.name = "Device " + address.substr(address.size() - 2), .address = address};
}

std::optional<std::string> nameOf(const std::optional<BluetoothAccessory>& moved) {
  return moved ? std::optional(moved->name) : std::nullopt;
}

TEST(AccessoryRouteTrackerTest, OnlyAMoveToAConnectedAccessoryCounts) {
  AccessoryRouteTracker tracker;
  const std::vector connected{accessory(buds)};
  EXPECT_FALSE(tracker.observe(buds, connected, 0));  // there already when Tindra starts
  EXPECT_FALSE(tracker.observe(buds, connected, 1));
  EXPECT_FALSE(tracker.observe(builtIn, connected, 2));
  EXPECT_EQ(nameOf(tracker.observe(buds, connected, 3)), "Device 01");
  EXPECT_FALSE(tracker.observe(buds, connected, 4));  // announced once

  // The speaker's output comes before Bluetooth reports it connected: the move waits for it.
  EXPECT_FALSE(tracker.observe(speaker, connected, 5));
  EXPECT_EQ(nameOf(tracker.observe(speaker, {accessory(buds), accessory(speaker)}, 6)),
            "Device 02");

  // A sound server that returns brings its default along; that is no move.
  tracker.outputLost();
  EXPECT_FALSE(tracker.observe(buds, connected, 7));
  // A move to a device that is no accessory waits in vain and leaves no trace.
  EXPECT_FALSE(tracker.observe(speaker, connected, 8));
  EXPECT_FALSE(tracker.observe(builtIn, {accessory(speaker)}, 9));
}

TEST(AccessoryRouteTrackerTest, TheConnectNoticeCoversTheMoveItCaused) {
  AccessoryRouteTracker tracker;
  EXPECT_FALSE(tracker.observe(builtIn, {}, 0));
  // Connected, then switched to by the sound server: the connect notice says it all.
  tracker.connectNoticeShown(buds, 10);
  EXPECT_FALSE(tracker.observe(buds, {accessory(buds)}, 12));
  // The other order: the output first, the connection a moment later.
  EXPECT_FALSE(tracker.observe(speaker, {accessory(buds)}, 30));
  tracker.connectNoticeShown(speaker, 30.2);
  EXPECT_FALSE(tracker.observe(speaker, {accessory(buds), accessory(speaker)}, 30.2));

  // Long after its connect notice, the user's own switch is told.
  tracker.connectNoticeShown(buds, 50);
  EXPECT_FALSE(tracker.observe(builtIn, {accessory(buds)}, 55));
  EXPECT_FALSE(tracker.observe(buds, {accessory(buds)}, 50 + 9.99));
  EXPECT_FALSE(tracker.observe(builtIn, {accessory(buds)}, 59.995));
  EXPECT_EQ(nameOf(tracker.observe(buds, {accessory(buds)},
                                   50 + AccessoryRouteTracker::connectCoverSeconds)),
            "Device 01");
}

}  // namespace
}  // namespace tindra
