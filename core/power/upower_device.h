// UPowerDevice: the properties of a UPower device (org.freedesktop.UPower.Device) that a battery
// reading is made of, kept as the service sent them. They come from another process, so
// batteryStatus() trusts none of them: a reading exists only for a present battery with a
// finite percentage, and times are shown only when they fit the state.
#pragma once

#include <cstdint>
#include <optional>

#include "base/enum_table.h"
#include "power/battery_status.h"
#include "power/power_source_value.h"

namespace tindra {

struct UPowerDevice {
  // The raw values of UPower's Type and State properties that matter here.
  static constexpr std::uint32_t typeBattery = 2;
  enum class State : std::uint32_t {
    unknown = 0,
    charging = 1,
    discharging = 2,
    empty = 3,
    fullyCharged = 4,
    pendingCharge = 5,
    pendingDischarge = 6,
  };

  std::uint32_t type = 0;
  std::uint32_t state = 0;
  double percentage = 0;
  bool isPresent = false;
  std::int64_t timeToEmpty = 0;  // seconds; 0 while UPower is still estimating
  std::int64_t timeToFull = 0;

  // The device as a power-source description with the keys PowerSourceParser reads, so the
  // same parser and notice rules run on every platform; none when this is no battery (a
  // desktop's display device reports no type and no presence) or its percentage is not finite.
  std::optional<PowerSourceDescription> powerSourceDescription() const;
  // The reading the views show: the description, parsed.
  std::optional<BatteryStatus> batteryStatus(bool isLowPowerMode = false) const;
};

template <>
struct EnumTable<UPowerDevice::State> {
  using E = UPowerDevice::State;
  static constexpr std::array cases{EnumCase{E::unknown, "unknown"},
                                    EnumCase{E::charging, "charging"},
                                    EnumCase{E::discharging, "discharging"},
                                    EnumCase{E::empty, "empty"},
                                    EnumCase{E::fullyCharged, "fullyCharged"},
                                    EnumCase{E::pendingCharge, "pendingCharge"},
                                    EnumCase{E::pendingDischarge, "pendingDischarge"}};
};

}  // namespace tindra
