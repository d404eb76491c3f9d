#include "power/power_source_parser.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace tindra {
namespace {

using Number = PowerSourceValue::NumberObject;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

PowerSourceDescription battery(PowerSourceDescription extra = {}) {
  PowerSourceDescription description{{"Type", "InternalBattery"},
                                     {"Current Capacity", 4500},
                                     {"Max Capacity", 5000},
                                     {"Power Source State", "Battery Power"}};
  for (auto& [key, value] : extra) description.insert_or_assign(key, value);
  return description;
}

std::optional<BatteryStatus> parse(std::vector<PowerSourceDescription> descriptions,
                                   bool isLowPowerMode = false) {
  return PowerSourceParser::parse(descriptions, isLowPowerMode);
}

std::optional<int> percentOf(PowerSourceDescription description) {
  const std::optional<BatteryStatus> status = parse({description});
  return status ? std::optional(status->percent) : std::nullopt;
}

TEST(PowerSourceParser, FindsTheFirstInternalBattery) {
  EXPECT_EQ(parse({}), std::nullopt);
  const PowerSourceDescription ups{{"Type", "UPS"}, {"Current Capacity", 50}};
  EXPECT_EQ(parse({ups}), std::nullopt);
  EXPECT_EQ(parse({{{"Type", 1}, {"Current Capacity", 50}}}), std::nullopt);
  EXPECT_EQ(parse({ups, battery(), battery({{"Current Capacity", 10}})}),
            BatteryStatus(90, false, false, false, std::nullopt, std::nullopt, false));
  // An internal battery that cannot be read does not fall through to the next one.
  EXPECT_EQ(parse({battery({{"Current Capacity", "full"}}), battery()}), std::nullopt);
  EXPECT_TRUE(parse({battery()}, true)->isLowPowerMode);
}

TEST(PowerSourceParser, PresenceAcceptsBooleansAndNumberObjectsOnly) {
  EXPECT_EQ(parse({battery({{"Is Present", false}})}), std::nullopt);
  EXPECT_EQ(parse({battery({{"Is Present", Number{0}}})}), std::nullopt);
  // Other types count as missing, and missing counts as present.
  for (PowerSourceValue present : {PowerSourceValue(true), PowerSourceValue(0),
                                   PowerSourceValue("false"), PowerSourceValue(Number{nan})}) {
    EXPECT_TRUE(parse({battery({{"Is Present", present}})}).has_value());
  }
}

TEST(PowerSourceParser, PercentFromCapacities) {
  EXPECT_EQ(percentOf(battery()), 90);
  EXPECT_EQ(percentOf(battery({{"Current Capacity", 1}, {"Max Capacity", 8}})), 13);  // 12.5
  EXPECT_EQ(percentOf(battery({{"Current Capacity", 2}, {"Max Capacity", 3}})), 67);
  EXPECT_EQ(percentOf(battery({{"Current Capacity", 9000}})), 100);
  EXPECT_EQ(percentOf(battery({{"Current Capacity", 0}})), 0);
  EXPECT_EQ(percentOf(battery({{"Max Capacity", 1}, {"Current Capacity", INT64_MAX}})), 100);
  EXPECT_EQ(percentOf(battery({{"Max Capacity", 0}})), std::nullopt);
  EXPECT_EQ(percentOf(battery({{"Current Capacity", -1}})), std::nullopt);
  PowerSourceDescription noMaximum = battery({{"Current Capacity", 10}});
  noMaximum.erase("Max Capacity");
  EXPECT_EQ(percentOf(noMaximum), 10);
  noMaximum.insert_or_assign("Current Capacity", -1);
  EXPECT_EQ(percentOf(noMaximum), std::nullopt);
  noMaximum.erase("Current Capacity");
  EXPECT_EQ(percentOf(noMaximum), std::nullopt);
  // A mistyped maximum counts as missing.
  EXPECT_EQ(percentOf(battery({{"Max Capacity", "5000"}, {"Current Capacity", 42}})), 42);
  // Doubles and number objects truncate toward zero; non-finite and huge ones are missing.
  EXPECT_EQ(percentOf(battery({{"Current Capacity", 45.9}, {"Max Capacity", 100}})), 45);
  EXPECT_EQ(percentOf(battery({{"Max Capacity", 0.5}})), std::nullopt);
  EXPECT_EQ(percentOf(battery({{"Current Capacity", -0.5}})), 0);
  EXPECT_EQ(percentOf(battery({{"Current Capacity", nan}})), std::nullopt);
  EXPECT_EQ(percentOf(battery({{"Current Capacity", 1e300}})), std::nullopt);
  EXPECT_EQ(percentOf(battery({{"Current Capacity", true}})), std::nullopt);
}

TEST(PowerSourceParser, PowerStateAndCharging) {
  const BatteryStatus adapter = *parse({battery(
      {{"Power Source State", "AC Power"}, {"Is Charging", Number{1}}, {"Is Charged", true}})});
  EXPECT_TRUE(adapter.isPluggedIn);
  EXPECT_TRUE(adapter.isCharging);
  EXPECT_TRUE(adapter.isCharged);
  // An integer is not a boolean; a lower-case state is not "AC Power".
  const BatteryStatus other = *parse(
      {battery({{"Power Source State", "ac power"}, {"Is Charging", 1}, {"Is Charged", "yes"}})});
  EXPECT_FALSE(other.isPluggedIn);
  EXPECT_FALSE(other.isCharging);
  EXPECT_FALSE(other.isCharged);
}

TEST(PowerSourceParser, MinuteEstimatesKeepOnlyPlausibleValues) {
  const auto toEmpty = [](PowerSourceValue minutes, const char* state = "Battery Power") {
    return parse({battery({{"Time to Empty", minutes}, {"Power Source State", state}})})
        ->minutesToEmpty;
  };
  EXPECT_EQ(toEmpty(0), std::nullopt);
  EXPECT_EQ(toEmpty(1), 1);
  EXPECT_EQ(toEmpty(5999), 5999);
  EXPECT_EQ(toEmpty(6000), std::nullopt);
  EXPECT_EQ(toEmpty(65535), std::nullopt);
  EXPECT_EQ(toEmpty(Number{120.7}), 120);
  EXPECT_EQ(toEmpty("120"), std::nullopt);
  EXPECT_EQ(toEmpty(120, "AC Power"), std::nullopt);

  const auto toFull = [](PowerSourceValue charging) {
    return parse({battery({{"Time to Full Charge", 45}, {"Is Charging", charging}})})
        ->minutesToFull;
  };
  EXPECT_EQ(toFull(true), 45);
  EXPECT_EQ(toFull(false), std::nullopt);
  EXPECT_EQ(toFull(1), std::nullopt);
}

}  // namespace
}  // namespace tindra
