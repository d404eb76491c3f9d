#include "power/upower_device.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tindra {
namespace {

UPowerDevice battery(UPowerDevice::State state, double percentage) {
  return {UPowerDevice::typeBattery, static_cast<std::uint32_t>(state), percentage, true, 0, 0};
}

TEST(UPowerDeviceTest, OnlyAPresentBatteryWithAFinitePercentageGivesAReading) {
  EXPECT_FALSE(UPowerDevice{}.batteryStatus());  // a desktop's display device
  UPowerDevice ups = battery(UPowerDevice::State::discharging, 50);
  ups.type = 3;
  EXPECT_FALSE(ups.batteryStatus());
  UPowerDevice absent = battery(UPowerDevice::State::discharging, 50);
  absent.isPresent = false;
  EXPECT_FALSE(absent.batteryStatus());
  EXPECT_FALSE(battery(UPowerDevice::State::discharging, std::nan("")).batteryStatus());
  EXPECT_FALSE(battery(UPowerDevice::State::discharging, INFINITY).batteryStatus());

  EXPECT_EQ(battery(UPowerDevice::State::discharging, 87.5).batteryStatus()->percent, 88);
  EXPECT_EQ(battery(UPowerDevice::State::discharging, 140).batteryStatus()->percent, 100);
  EXPECT_EQ(battery(UPowerDevice::State::discharging, -3).batteryStatus()->percent, 0);
}

TEST(UPowerDeviceTest, StateDecidesPowerAndWhichTimeIsShown) {
  UPowerDevice device = battery(UPowerDevice::State::discharging, 40);
  device.timeToEmpty = 5400;
  device.timeToFull = 1200;  // stale: UPower may leave the other time behind
  BatteryStatus onBattery = device.batteryStatus().value();
  EXPECT_FALSE(onBattery.isPluggedIn);
  EXPECT_EQ(onBattery.minutesToEmpty, 90);
  EXPECT_EQ(onBattery.minutesToFull, std::nullopt);

  device.state = static_cast<std::uint32_t>(UPowerDevice::State::charging);
  BatteryStatus charging = device.batteryStatus().value();
  EXPECT_TRUE(charging.isPluggedIn && charging.isCharging);
  EXPECT_EQ(charging.minutesToFull, 20);
  EXPECT_EQ(charging.minutesToEmpty, std::nullopt);

  device.state = static_cast<std::uint32_t>(UPowerDevice::State::pendingCharge);
  BatteryStatus heldBack = device.batteryStatus().value();
  EXPECT_TRUE(heldBack.isPluggedIn);
  EXPECT_FALSE(heldBack.isCharging);
  EXPECT_EQ(heldBack.minutesToFull, std::nullopt);

  device.state = static_cast<std::uint32_t>(UPowerDevice::State::fullyCharged);
  EXPECT_TRUE(device.batteryStatus()->isCharged);

  device.state = 42;  // a state this build does not know: no claims either way
  BatteryStatus unknown = device.batteryStatus().value();
  EXPECT_FALSE(unknown.isPluggedIn || unknown.isCharging);
  EXPECT_EQ(unknown.minutesToEmpty, std::nullopt);

  device.state = static_cast<std::uint32_t>(UPowerDevice::State::discharging);
  device.timeToEmpty = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(device.batteryStatus()->minutesToEmpty, std::nullopt);
  device.timeToEmpty = -60;
  EXPECT_EQ(device.batteryStatus()->minutesToEmpty, std::nullopt);
}

}  // namespace
}  // namespace tindra
