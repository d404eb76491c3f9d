// SystemProfilerBluetoothParser: reads the system profiler's Bluetooth report (the JSON of the
// "SPBluetoothDataType" data type) into device entries, and an entry into an accessory. Device
// lists sit under "connected", "not_connected", "disconnected" (also with a "device_" prefix) and
// "devices_list", at any depth and nested in one another. A provider without the report (BlueZ on
// Linux) can build entries itself with the same property names and value forms.
#pragma once

#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/json_reader.h"
#include "base/json_value.h"
#include "power/bluetooth_accessory.h"

namespace tindra {

class SystemProfilerBluetoothParser {
 public:
  // One device of the report: its name (the key of its entry) and its fields.
  struct Entry {
    std::string name;
    JSONValue::Object properties;
    // Listed in a connected section, or marked connected by its own "device_isconnected".
    bool isConnected = false;
    friend bool operator==(const Entry&, const Entry&) = default;
  };

  // The report is not JSON text.
  struct ParseError {
    JSONParseError json;
    std::string message() const;
    friend bool operator==(const ParseError&, const ParseError&) = default;
  };

  // Every device entry of the report text, in report order (sections by name, so connected
  // sections come before the others).
  static std::expected<std::vector<Entry>, ParseError> entries(std::string_view report);
  // Every device entry of an already read report (taken by value: the fields move out of it).
  static std::vector<Entry> entriesOf(JSONValue report);

  // The accessory an entry describes. Reads "device_address", "device_vendorID",
  // "device_productID" (numbers, decimal or "0x" hexadecimal text), "device_minorType",
  // "device_title" (the name when the entry's key is empty) and the battery levels
  // "device_batteryLevelLeft", "...Right", "...Case", "...Main" and "device_batteryLevel" (numbers
  // or text such as "85%"). Fields that are missing, mistyped or out of range are left absent.
  static BluetoothAccessory accessory(const Entry& entry, bool fallbackIsHeadphones = false);

  // One accessory per device, from the first entry of each address (entries without an address
  // by name).
  static std::vector<BluetoothAccessory> accessories(std::span<const Entry> entries,
                                                     bool fallbackIsHeadphones = false);
};

}  // namespace tindra
