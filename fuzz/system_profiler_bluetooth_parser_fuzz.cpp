// Feeds arbitrary bytes to the Bluetooth report parser and checks that every accessory it yields
// is well formed: levels within 0 ... 100, 16-bit ids, and an address already canonical.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "power/bluetooth_address.h"
#include "power/system_profiler_bluetooth_parser.h"

namespace {

void require(bool condition) {
  if (!condition) __builtin_trap();
}

bool isLevel(std::optional<int> level) {
  return !level || (*level >= 0 && *level <= 100);
}

bool isID(std::optional<int> id) {
  return !id || (*id >= 0 && *id <= 0xFFFF);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tindra::SystemProfilerBluetoothParser;
  const std::string_view report(reinterpret_cast<const char*>(data), size);
  const auto entries = SystemProfilerBluetoothParser::entries(report);
  if (!entries) return 0;
  for (const auto& accessory : SystemProfilerBluetoothParser::accessories(*entries, size % 2)) {
    const auto& battery = accessory.battery;
    require(isLevel(battery.left) && isLevel(battery.right) && isLevel(battery.caseLevel) &&
            isLevel(battery.main));
    require(isID(accessory.vendorID) && isID(accessory.productID));
    if (accessory.address) {
      require(tindra::BluetoothAddress::normalized(*accessory.address) == accessory.address);
    }
  }
  return 0;
}
