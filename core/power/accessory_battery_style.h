// AccessoryBatteryStyle: how accessory battery levels are drawn, as numbers or as rings. Stored
// in the settings by its raw string.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class AccessoryBatteryStyle { percentage, ring };

inline constexpr std::array<AccessoryBatteryStyle, 2> allAccessoryBatteryStyles{
    AccessoryBatteryStyle::percentage, AccessoryBatteryStyle::ring};

std::string_view rawValue(AccessoryBatteryStyle style);
std::optional<AccessoryBatteryStyle> accessoryBatteryStyleFromRaw(std::string_view raw);

}  // namespace tindra
