// PmsetAccessoryParser: turns the power-source list (accessories that report their battery to the
// system, such as "AirPods Pro (Left)") into one battery reading per device. The Mac's own
// battery ("InternalBattery-0") is not an accessory and is skipped; levels outside 0 ... 100 and
// unnamed sources are dropped.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "power/accessory_battery.h"

namespace tindra {

// One device's battery from the power-source list; `name` has any part suffix removed.
struct PmsetAccessoryReading {
  std::string name;
  AccessoryBattery battery;
  friend bool operator==(const PmsetAccessoryReading&, const PmsetAccessoryReading&) = default;
};

class PmsetAccessoryParser {
 public:
  struct PowerSource {
    std::string name;
    int level;  // percent
    bool isCharging;
    friend bool operator==(const PowerSource&, const PowerSource&) = default;
  };

  // One reading per device, in the order the devices first appear. When a device lists the same
  // part twice, the later level wins.
  static std::vector<PmsetAccessoryReading> readings(std::span<const PowerSource> sources);

  // The device name and the part a power-source name stands for: a trailing "(Left)", "(Right)"
  // or "(Case)" (any case and spacing) names the part; any other name, a parenthesised
  // model suffix included ("Beats Solo (2nd gen)"), is the whole device with its main battery.
  static std::pair<std::string, AccessoryBatteryPart> split(std::string_view name);
};

}  // namespace tindra
