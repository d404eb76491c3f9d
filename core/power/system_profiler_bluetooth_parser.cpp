#include "power/system_profiler_bluetooth_parser.h"

#include <cmath>
#include <optional>
#include <set>

#include "base/ascii_text.h"
#include "power/bluetooth_address.h"

namespace tindra {
namespace {

using Entry = SystemProfilerBluetoothParser::Entry;

// What a device list says about the connection of the devices in it.
enum class Section { connected, notConnected, inherited };

std::optional<Section> sectionOf(std::string_view key) {
  if (key == "connected" || key == "device_connected") return Section::connected;
  if (key == "not_connected" || key == "disconnected" || key == "device_not_connected") {
    return Section::notConnected;
  }
  if (key == "devices_list") return Section::inherited;
  return std::nullopt;
}

bool holdsDeviceList(const JSONValue::Object& object) {
  for (const auto& [key, member] : object) {
    if (sectionOf(key) && member.asArray()) return true;
  }
  return false;
}

std::optional<bool> yesOrNo(const JSONValue* value) {
  if (!value) return std::nullopt;
  if (const bool* flag = value->asBool()) return *flag;
  const std::string* text = value->asString();
  if (!text) return std::nullopt;
  const std::string lowered = asciiLowercased(trimmedASCII(*text));
  if (lowered == "attrib_yes" || lowered == "yes") return true;
  if (lowered == "attrib_no" || lowered == "no") return false;
  return std::nullopt;
}

// A list element is a device when it is an object of one member whose value is the device's
// fields; an element grouping further lists is walked instead. The fields move out of the
// document, which the walk owns.
std::optional<Entry> entryOf(JSONValue& element, bool connected) {
  JSONValue::Object* object = element.asObject();
  if (!object || object->size() != 1) return std::nullopt;
  auto& [name, value] = *object->begin();
  JSONValue::Object* properties = value.asObject();
  if (!properties || holdsDeviceList(*properties)) return std::nullopt;
  const JSONValue* marked = value.find("device_isconnected");
  const bool isConnected = yesOrNo(marked).value_or(connected);
  return Entry{name, std::move(*properties), isConnected};
}

void walk(JSONValue& value, bool connected, std::vector<Entry>& found);

void collectList(JSONValue::Array& list, bool connected, std::vector<Entry>& found) {
  for (JSONValue& element : list) {
    if (std::optional<Entry> entry = entryOf(element, connected)) {
      found.push_back(std::move(*entry));
    } else if (JSONValue::Array* inner = element.asArray()) {
      collectList(*inner, connected, found);  // a list split into sub-lists
    } else {
      walk(element, connected, found);
    }
  }
}

void walk(JSONValue& value, bool connected, std::vector<Entry>& found) {
  if (JSONValue::Array* array = value.asArray()) {
    for (JSONValue& element : *array) walk(element, connected, found);
    return;
  }
  JSONValue::Object* object = value.asObject();
  if (!object) return;
  for (auto& [key, member] : *object) {
    const std::optional<Section> section = sectionOf(key);
    JSONValue::Array* list = member.asArray();
    if (section && list) {
      const bool listConnected =
          *section == Section::inherited ? connected : *section == Section::connected;
      collectList(*list, listConnected, found);
    } else {
      walk(member, connected, found);
    }
  }
}

const JSONValue* property(const Entry& entry, std::string_view key) {
  const auto found = entry.properties.find(key);
  return found == entry.properties.end() ? nullptr : &found->second;
}

const std::string* stringProperty(const Entry& entry, std::string_view key) {
  const JSONValue* value = property(entry, key);
  return value ? value->asString() : nullptr;
}

std::optional<int> asInt(std::optional<std::uint32_t> value) {
  return value ? std::optional<int>(static_cast<int>(*value)) : std::nullopt;
}

// Vendor and product ids: 16-bit, as a whole number, decimal text or "0x" hexadecimal text
// ("0x004C").
std::optional<int> identifier(const Entry& entry, std::string_view key) {
  constexpr std::uint32_t largestID = 0xFFFF;
  const JSONValue* value = property(entry, key);
  if (!value) return std::nullopt;
  if (const double* number = value->asNumber()) {
    if (!(*number >= 0 && *number <= largestID) || std::trunc(*number) != *number) {
      return std::nullopt;
    }
    return static_cast<int>(*number);
  }
  const std::string* text = value->asString();
  if (!text) return std::nullopt;
  std::string_view digits = trimmedASCII(*text);
  int base = 10;
  if (digits.starts_with("0x") || digits.starts_with("0X")) {
    digits.remove_prefix(2);
    base = 16;
  }
  return asInt(unsignedNumber(digits, base, largestID));
}

// A battery level in percent: a number (rounded), or whole-number text such as "85%" or "85 %".
std::optional<int> batteryLevel(const Entry& entry, std::string_view key) {
  constexpr std::uint32_t full = 100;
  const JSONValue* value = property(entry, key);
  if (!value) return std::nullopt;
  if (const double* number = value->asNumber()) {
    if (!(*number >= 0 && *number <= full)) return std::nullopt;
    return static_cast<int>(std::lround(*number));
  }
  const std::string* text = value->asString();
  if (!text) return std::nullopt;
  std::string_view digits = trimmedASCII(*text);
  if (digits.ends_with('%')) digits = trimmedASCII(digits.substr(0, digits.size() - 1));
  return asInt(unsignedNumber(digits, 10, full));
}

AccessoryBattery batteryOf(const Entry& entry) {
  AccessoryBattery battery;
  battery.left = batteryLevel(entry, "device_batteryLevelLeft");
  battery.right = batteryLevel(entry, "device_batteryLevelRight");
  battery.caseLevel = batteryLevel(entry, "device_batteryLevelCase");
  // Older reports give single-battery devices one unqualified level.
  battery.main = batteryLevel(entry, "device_batteryLevelMain");
  if (!battery.main) battery.main = batteryLevel(entry, "device_batteryLevel");
  return battery;
}

}  // namespace

std::string SystemProfilerBluetoothParser::ParseError::message() const {
  return "Bluetooth report: " + json.message();
}

std::expected<std::vector<Entry>, SystemProfilerBluetoothParser::ParseError>
SystemProfilerBluetoothParser::entries(std::string_view report) {
  std::expected<JSONValue, JSONParseError> document = JSONReader::parse(report);
  if (!document) return std::unexpected(ParseError{document.error()});
  return entriesOf(std::move(*document));
}

std::vector<Entry> SystemProfilerBluetoothParser::entriesOf(JSONValue report) {
  std::vector<Entry> found;
  walk(report, false, found);
  return found;
}

BluetoothAccessory SystemProfilerBluetoothParser::accessory(const Entry& entry,
                                                            bool fallbackIsHeadphones) {
  BluetoothAccessory accessory;
  accessory.name = entry.name;
  if (accessory.name.empty()) {
    if (const std::string* title = stringProperty(entry, "device_title")) accessory.name = *title;
  }
  if (const std::string* address = stringProperty(entry, "device_address")) {
    accessory.address = BluetoothAddress::normalized(*address);
  }
  if (const std::string* minorType = stringProperty(entry, "device_minorType")) {
    accessory.minorType = *minorType;
  }
  accessory.vendorID = identifier(entry, "device_vendorID");
  accessory.productID = identifier(entry, "device_productID");
  accessory.battery = batteryOf(entry);
  accessory.kind =
      classifyBluetoothAccessory(accessory.name, accessory.minorType, accessory.vendorID,
                                 accessory.productID, fallbackIsHeadphones);
  return accessory;
}

std::vector<BluetoothAccessory> SystemProfilerBluetoothParser::accessories(
    std::span<const Entry> entries, bool fallbackIsHeadphones) {
  std::vector<BluetoothAccessory> found;
  std::set<std::string, std::less<>> seen;
  for (const Entry& entry : entries) {
    BluetoothAccessory candidate = accessory(entry, fallbackIsHeadphones);
    // The prefixes keep a name from ever colliding with an address.
    const std::string identity =
        candidate.address ? "address " + *candidate.address : "name " + candidate.name;
    if (seen.insert(identity).second) found.push_back(std::move(candidate));
  }
  return found;
}

}  // namespace tindra
