// BluetoothAddress: one spelling for a device's Bluetooth address, so the same device from the
// system profiler, the power-source list, BlueZ or a connection event is one accessory.
// The canonical form is six lower-case hexadecimal pairs joined by colons: "ac:90:85:0b:1c:2d".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tindra {

struct BluetoothAddress {
  // The canonical form of `text`: twelve hexadecimal digits, either run together or in six pairs
  // joined by one separator used throughout (":", "-", "_" or "."), in either case, with
  // surrounding white space ignored. None for anything else.
  static std::optional<std::string> normalized(std::string_view text);
};

}  // namespace tindra
