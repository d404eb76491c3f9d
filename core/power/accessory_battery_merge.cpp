#include "power/accessory_battery_merge.h"

#include <cmath>

namespace tindra {

bool AccessoryBatteryMerge::record(const AccessoryBattery& battery, double time,
                                   AccessoryBatterySource source) {
  if (!std::isfinite(time)) return false;
  const auto existing = readings.find(source);
  if (existing != readings.end() && existing->second.time > time) return false;
  readings.insert_or_assign(source, Reading{battery, time, source});
  return true;
}

AccessoryBattery AccessoryBatteryMerge::merged() const {
  AccessoryBattery battery;
  for (AccessoryBatteryPart part : allCases<AccessoryBatteryPart>()) {
    const Reading* newest = nullptr;
    // Readings run in source order, so on a tie the earlier source (the power-source list) stays.
    for (const auto& [source, reading] : readings) {
      if (reading.battery.level(part) && (!newest || reading.time > newest->time)) {
        newest = &reading;
      }
    }
    if (newest) battery.setLevel(part, newest->battery.level(part));
  }
  return battery;
}

}  // namespace tindra
