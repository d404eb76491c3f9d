#include "power/accessory_battery_style.h"

namespace tindra {

std::string_view rawValue(AccessoryBatteryStyle style) {
  return style == AccessoryBatteryStyle::ring ? "ring" : "percentage";
}

std::optional<AccessoryBatteryStyle> accessoryBatteryStyleFromRaw(std::string_view raw) {
  for (AccessoryBatteryStyle style : allAccessoryBatteryStyles) {
    if (rawValue(style) == raw) return style;
  }
  return std::nullopt;
}

}  // namespace tindra
