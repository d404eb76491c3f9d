#include "power/battery_status.h"

#include <algorithm>

namespace tindra {

BatteryStatus::BatteryStatus(int percent, bool isPluggedIn, bool isCharging, bool isCharged,
                             std::optional<int> minutesToEmpty, std::optional<int> minutesToFull,
                             bool isLowPowerMode)
    : percent(std::clamp(percent, 0, 100)),
      isPluggedIn(isPluggedIn),
      isCharging(isCharging),
      isCharged(isCharged),
      minutesToEmpty(minutesToEmpty),
      minutesToFull(minutesToFull),
      isLowPowerMode(isLowPowerMode) {}

std::string_view BatteryStatus::symbolName() const {
  if (isCharging) return "battery.100percent.bolt";
  if (isPluggedIn) return "powerplug.fill";
  // The symbols come in quarter steps; each bucket covers the levels nearest to it.
  if (percent >= 88) return "battery.100percent";
  if (percent >= 63) return "battery.75percent";
  if (percent >= 38) return "battery.50percent";
  if (percent >= 13) return "battery.25percent";
  return "battery.0percent";
}

}  // namespace tindra
