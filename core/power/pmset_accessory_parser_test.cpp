#include "power/pmset_accessory_parser.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Source = PmsetAccessoryParser::PowerSource;
using Part = AccessoryBatteryPart;

std::vector<PmsetAccessoryReading> readings(std::vector<Source> sources) {
  return PmsetAccessoryParser::readings(sources);
}

TEST(PmsetAccessoryParser, CombinesThePartsOfOneDevice) {
  EXPECT_EQ(readings({{"AirPods Pro (Left)", 80, false},
                      {"Keyboard", 60, false},
                      {"AirPods Pro (Case)", 45, true},
                      {"AirPods Pro ( RIGHT )", 79, false}}),
            (std::vector<PmsetAccessoryReading>{{"AirPods Pro", {80, 79, 45, std::nullopt}},
                                                {"Keyboard", {.main = 60}}}));
  // A repeated part keeps the later level.
  EXPECT_EQ(readings({{"Buds (Left)", 80, false}, {"Buds (Left)", 70, false}}),
            (std::vector<PmsetAccessoryReading>{{"Buds", {.left = 70}}}));
}

TEST(PmsetAccessoryParser, SkipsTheMacAndAbsurdLevels) {
  EXPECT_EQ(readings({{"InternalBattery-0", 90, true},
                      {"Mouse", -1, false},
                      {"Trackpad", 101, false},
                      {"  ", 50, false},
                      {"Speaker", 0, false},
                      {"Pen", 100, false}}),
            (std::vector<PmsetAccessoryReading>{{"Speaker", {.main = 0}}, {"Pen", {.main = 100}}}));
}

TEST(PmsetAccessoryParser, UnknownOrBareSuffixKeepsTheWholeName) {
  const auto split = [](std::string_view name) { return PmsetAccessoryParser::split(name); };
  EXPECT_EQ(split("Beats Solo (2nd gen)"),
            std::pair(std::string("Beats Solo (2nd gen)"), Part::main));
  EXPECT_EQ(split("(Left)"), std::pair(std::string("(Left)"), Part::main));
  EXPECT_EQ(split("Buds (Left) "), std::pair(std::string("Buds"), Part::left));
  EXPECT_EQ(split("Buds (Left) x"), std::pair(std::string("Buds (Left) x"), Part::main));
  EXPECT_EQ(split("Buds (A (case)"), std::pair(std::string("Buds (A"), Part::caseLevel));
  EXPECT_EQ(split("Buds case)"), std::pair(std::string("Buds case)"), Part::main));
  EXPECT_EQ(split(")"), std::pair(std::string(")"), Part::main));
}

}  // namespace
}  // namespace tindra
