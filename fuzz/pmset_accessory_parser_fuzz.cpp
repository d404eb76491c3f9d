// Feeds arbitrary power-source lists (one source per line: a level byte, a charging byte, then
// the name) to the accessory reading parser, and every line to the address normaliser.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "power/bluetooth_address.h"
#include "power/pmset_accessory_parser.h"

namespace {

void require(bool condition) {
  if (!condition) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tindra::PmsetAccessoryParser;
  std::string_view input(reinterpret_cast<const char*>(data), size);
  std::vector<PmsetAccessoryParser::PowerSource> sources;
  while (!input.empty()) {
    const std::size_t end = std::min(input.find('\n'), input.size());
    const std::string_view line = input.substr(0, end);
    input.remove_prefix(std::min(end + 1, input.size()));
    if (const auto address = tindra::BluetoothAddress::normalized(line)) {
      require(address->size() == 17 && tindra::BluetoothAddress::normalized(*address) == address);
    }
    if (line.size() < 2) continue;
    // Levels span -28 ... 227 so both ends of the accepted range get exercised.
    const int level = static_cast<unsigned char>(line[0]) - 28;
    sources.push_back({std::string(line.substr(2)), level, (line[1] & 1) != 0});
  }
  for (const auto& reading : PmsetAccessoryParser::readings(sources)) {
    require(!reading.name.empty() && !reading.battery.isEmpty());
  }
  return 0;
}
