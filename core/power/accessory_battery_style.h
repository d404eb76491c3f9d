// AccessoryBatteryStyle: how accessory battery levels are drawn, as numbers or as rings. Stored
// in the settings by its raw string.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class AccessoryBatteryStyle { percentage, ring };

template <>
struct EnumTable<AccessoryBatteryStyle> {
  static constexpr std::array cases{EnumCase{AccessoryBatteryStyle::percentage, "percentage"},
                                    EnumCase{AccessoryBatteryStyle::ring, "ring"}};
};

}  // namespace tindra
