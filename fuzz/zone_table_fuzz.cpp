// Feeds arbitrary text to the time-zone table reader: every zone it keeps must have a name and a
// position on the globe, and looking each up must find it.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "weather/zone_table.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const tindra::ZoneTable table = tindra::ZoneTable::parse(text);
  for (const auto& zone : table.zones()) {
    if (zone.name.empty() || !(std::abs(zone.city.latitude) <= 90) ||
        !(std::abs(zone.city.longitude) <= 180)) {
      std::abort();
    }
    if (!table.city(zone.name)) std::abort();
  }
  return 0;
}
