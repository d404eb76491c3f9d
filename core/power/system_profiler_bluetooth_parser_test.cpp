#include "power/system_profiler_bluetooth_parser.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace tindra {
namespace {

using Parser = SystemProfilerBluetoothParser;
using Kind = BluetoothAccessoryKind;

std::vector<Parser::Entry> entries(std::string_view report) {
  auto parsed = Parser::entries(report);
  EXPECT_TRUE(parsed.has_value()) << report;
  return parsed.value_or(std::vector<Parser::Entry>{});
}

std::vector<std::string> names(const std::vector<Parser::Entry>& entries) {
  std::vector<std::string> result;
  for (const auto& entry : entries) result.push_back(entry.name + (entry.isConnected ? "+" : "-"));
  return result;
}

BluetoothAccessory accessoryOf(std::string_view properties) {
  const auto document = JSONReader::parse(properties);
  return Parser::accessory({"Device", *document->asObject()});
}

TEST(SystemProfilerBluetoothParser, ReadsAFullReport) {
  std::ifstream file(TINDRA_CORE_DIR "/power/testdata/bluetooth-report.json");
  std::stringstream text;
  text << file.rdbuf();
  const std::vector<BluetoothAccessory> accessories = Parser::accessories(entries(text.str()));
  ASSERT_EQ(accessories.size(), 3u);
  EXPECT_EQ(accessories[0], (BluetoothAccessory{"Anna's AirPods Pro",
                                                "ac:90:85:0b:1c:2d",
                                                Kind::airPodsPro,
                                                {100, 99, 45, std::nullopt},
                                                "Headphones",
                                                76,
                                                0x2024}));
  EXPECT_EQ(accessories[1].battery, (AccessoryBattery{.main = 80}));
  EXPECT_EQ(accessories[1].kind, Kind::other);
  EXPECT_EQ(accessories[2].address, "00:1a:7d:da:71:13");
  EXPECT_EQ(accessories[2].kind, Kind::speaker);
  EXPECT_EQ(accessories[2].vendorID, 1452);
}

TEST(SystemProfilerBluetoothParser, WalksNestedListsAndKeepsConnection) {
  const auto found = entries(R"({"devices_list": [
      {"connected": [{"A": {}}, {"B": {"device_isconnected": "attrib_No"}}]},
      {"Group": {"not_connected": [{"C": {}}], "other": [{"X": {}}]}},
      {"D": {"device_isconnected": "attrib_Yes"}},
      {"E": "not a device"}, {"F": {}, "G": {}}, 7],
    "disconnected": [{"H": {"devices_list": "text"}}, [{"I": {}}]],
    "connected": {"J": {}},
    "nested": {"deeper": [{"connected": [{"K": {}}]}]}})");
  EXPECT_EQ(names(found), (std::vector<std::string>{"A+", "B-", "C-", "D+", "H-", "I-", "K+"}));
  EXPECT_EQ(found[4].properties.at("devices_list"), JSONValue("text"));
  EXPECT_TRUE(entries("[]").empty());
  EXPECT_TRUE(entries(R"({"connected": []})").empty());
  const auto broken = Parser::entries(R"({"connected": [)");
  ASSERT_FALSE(broken.has_value());
  EXPECT_EQ(broken.error().json.code, JSONParseError::Code::unexpectedEnd);
}

TEST(SystemProfilerBluetoothParser, IdentifiersInEveryFormTheReportUses) {
  const auto vendor = [](std::string_view value) {
    return accessoryOf(R"({"device_vendorID": )" + std::string(value) + "}").vendorID;
  };
  EXPECT_EQ(vendor(R"("0x004C")"), 76);
  EXPECT_EQ(vendor(R"(" 0X4c ")"), 76);
  EXPECT_EQ(vendor(R"("76")"), 76);
  EXPECT_EQ(vendor("76"), 76);
  EXPECT_EQ(vendor(R"("0xFFFF")"), 0xFFFF);
  for (std::string_view bad : {R"("0x10000")", R"("0x")", R"("-1")", R"("4C")", R"("0x4C h")",
                               "76.5", "-1", "65536", "true", "null", R"("")"}) {
    EXPECT_EQ(vendor(bad), std::nullopt) << bad;
  }
  EXPECT_EQ(accessoryOf(R"({"device_vendorID": "0x004C", "device_productID": "0x2027"})").kind,
            Kind::airPodsPro3);
}

TEST(SystemProfilerBluetoothParser, BatteryLevelsAndOtherFields) {
  const auto main = [](std::string_view value) {
    return accessoryOf(R"({"device_batteryLevelMain": )" + std::string(value) + "}").battery.main;
  };
  EXPECT_EQ(main(R"("85%")"), 85);
  EXPECT_EQ(main(R"(" 0 % ")"), 0);
  EXPECT_EQ(main(R"("100")"), 100);
  EXPECT_EQ(main("99.6"), 100);
  for (std::string_view bad : {R"("101%")", R"("-5%")", R"("%")", R"("8 5%")", R"("85%%")", "100.5",
                               "-0.5", "[85]", R"("abc")"}) {
    EXPECT_EQ(main(bad), std::nullopt) << bad;
  }
  // The unqualified older level stands in for a missing main level only.
  EXPECT_EQ(accessoryOf(R"({"device_batteryLevel": "40%"})").battery.main, 40);
  EXPECT_EQ(accessoryOf(R"({"device_batteryLevel": "40%", "device_batteryLevelMain": "50%"})")
                .battery.main,
            50);

  const BluetoothAccessory odd = accessoryOf(
      R"({"device_address": "AC:90:85", "device_minorType": 4, "device_title": "Ignored"})");
  EXPECT_EQ(odd, (BluetoothAccessory{.name = "Device"}));
  const BluetoothAccessory untitled =
      Parser::accessory({"", {{"device_title", "Beats Solo Buds"}}}, true);
  EXPECT_EQ(untitled.name, "Beats Solo Buds");
  EXPECT_EQ(untitled.kind, Kind::beats);
}

TEST(SystemProfilerBluetoothParser, OneAccessoryPerDevice) {
  const auto found = entries(R"({
      "connected": [{"Buds": {"device_address": "AC:90:85:0B:1C:2D", "device_batteryLevelLeft": "50%"}},
                    {"Speaker": {}}],
      "not_connected": [{"Old name": {"device_address": "ac-90-85-0b-1c-2d"}},
                        {"Speaker": {}}, {"Other": {"device_address": "ac-90-85-0b-1c-2e"}}]})");
  const auto accessories = Parser::accessories(found);
  ASSERT_EQ(accessories.size(), 3u);
  EXPECT_EQ(accessories[0].name, "Buds");
  EXPECT_EQ(accessories[0].battery.left, 50);
  EXPECT_EQ(accessories[1].name, "Speaker");
  EXPECT_EQ(accessories[2].name, "Other");
}

}  // namespace
}  // namespace tindra
