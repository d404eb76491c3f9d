#include "power/accessory_battery.h"

namespace tindra {
namespace {

template <typename Battery>
auto& field(Battery& battery, AccessoryBatteryPart part) {
  switch (part) {
    case AccessoryBatteryPart::left:
      return battery.left;
    case AccessoryBatteryPart::right:
      return battery.right;
    case AccessoryBatteryPart::caseLevel:
      return battery.caseLevel;
    case AccessoryBatteryPart::main:
      break;
  }
  return battery.main;
}

}  // namespace

std::optional<int> AccessoryBattery::level(AccessoryBatteryPart part) const {
  return field(*this, part);
}

void AccessoryBattery::setLevel(AccessoryBatteryPart part, std::optional<int> level) {
  field(*this, part) = level;
}

}  // namespace tindra
