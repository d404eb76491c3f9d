// BluetoothAccessory: one Bluetooth device as the notch knows it, with its kind and battery.
// The address, when known, is in BluetoothAddress's canonical form and identifies the device.
#pragma once

#include <optional>
#include <string>

#include "power/accessory_battery.h"
#include "power/bluetooth_accessory_kind.h"

namespace tindra {

struct BluetoothAccessory {
  std::string name;                                   // as the system reports it
  std::optional<std::string> address = std::nullopt;  // canonical, see BluetoothAddress
  BluetoothAccessoryKind kind = BluetoothAccessoryKind::other;
  AccessoryBattery battery = {};
  std::optional<std::string> minorType =
      std::nullopt;  // the system's minor device type ("Headphones")
  std::optional<int> vendorID = std::nullopt;
  std::optional<int> productID = std::nullopt;

  friend bool operator==(const BluetoothAccessory&, const BluetoothAccessory&) = default;
};

}  // namespace tindra
