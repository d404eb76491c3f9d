// AccessoryBattery: the battery levels of one Bluetooth accessory in percent (0 ... 100), each
// absent when unknown. True earbuds report left, right and case; other devices one main level.
// AccessoryBatteryPart names one of the four levels.
#pragma once

#include <array>
#include <optional>

#include "base/enum_table.h"

namespace tindra {

enum class AccessoryBatteryPart { left, right, caseLevel, main };

template <>
struct EnumTable<AccessoryBatteryPart> {
  static constexpr std::array cases{EnumCase{AccessoryBatteryPart::left, "left"},
                                    EnumCase{AccessoryBatteryPart::right, "right"},
                                    EnumCase{AccessoryBatteryPart::caseLevel, "caseLevel"},
                                    EnumCase{AccessoryBatteryPart::main, "main"}};
};

struct AccessoryBattery {
  std::optional<int> left = std::nullopt;
  std::optional<int> right = std::nullopt;
  std::optional<int> caseLevel = std::nullopt;
  std::optional<int> main = std::nullopt;

  // The level of one part.
  std::optional<int> level(AccessoryBatteryPart part) const;
  // Sets (or clears, with none) the level of one part.
  void setLevel(AccessoryBatteryPart part, std::optional<int> level);
  // No part has a level.
  bool isEmpty() const { return !left && !right && !caseLevel && !main; }

  friend bool operator==(const AccessoryBattery&, const AccessoryBattery&) = default;
};

}  // namespace tindra
