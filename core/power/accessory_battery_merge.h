// AccessoryBatteryMerge: the latest battery reading of each source for one accessory, combined
// into the levels the views show. Per part, the newest reading that has a level wins; at equal
// times the power-source list wins, as the device reports it there itself.
#pragma once

#include <map>

#include "power/accessory_battery.h"
#include "power/accessory_battery_source.h"

namespace tindra {

struct AccessoryBatteryMerge {
  struct Reading {
    AccessoryBattery battery;
    double time;  // seconds since 1970
    AccessoryBatterySource source;
    friend bool operator==(const Reading&, const Reading&) = default;
  };

  std::map<AccessoryBatterySource, Reading> readings;

  // Keeps `battery` as the reading of `source` unless that source already has a newer one.
  // A reading without a finite time is ignored. True when the reading was kept.
  bool record(const AccessoryBattery& battery, double time, AccessoryBatterySource source);
  // Each part from the newest reading that has a level for it.
  AccessoryBattery merged() const;

  friend bool operator==(const AccessoryBatteryMerge&, const AccessoryBatteryMerge&) = default;
};

}  // namespace tindra
