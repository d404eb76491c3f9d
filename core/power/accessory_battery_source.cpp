#include "power/accessory_battery_source.h"

namespace tindra {

std::string_view rawValue(AccessoryBatterySource source) {
  return source == AccessoryBatterySource::systemProfiler ? "systemProfiler" : "powerSources";
}

std::optional<AccessoryBatterySource> accessoryBatterySourceFromRaw(std::string_view raw) {
  for (AccessoryBatterySource source :
       {AccessoryBatterySource::powerSources, AccessoryBatterySource::systemProfiler}) {
    if (rawValue(source) == raw) return source;
  }
  return std::nullopt;
}

}  // namespace tindra
