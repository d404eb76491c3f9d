// PowerSourceParser: turns the system's power-source descriptions into the internal battery's
// status. Missing, mistyped or absurd values give no status or drop the field; nothing throws.
// A provider without the system's dictionaries (UPower on Linux) builds descriptions with the
// same keys: "Type", "Is Present", "Current Capacity", "Max Capacity", "Power Source State",
// "Is Charging", "Is Charged", "Time to Empty" and "Time to Full Charge" (minutes).
#pragma once

#include <optional>
#include <span>

#include "power/battery_status.h"
#include "power/power_source_value.h"

namespace tindra {

class PowerSourceParser {
 public:
  // The first internal battery among `descriptions`; none when there is none, it is absent, or
  // its capacity cannot be read.
  static std::optional<BatteryStatus> parse(std::span<const PowerSourceDescription> descriptions,
                                            bool isLowPowerMode);
};

}  // namespace tindra
