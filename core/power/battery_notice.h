// BatteryNotice: a battery event worth showing in the notch, with the reading that caused it and
// how long it stays up.
#pragma once

#include "base/enum_table.h"
#include "power/battery_status.h"

namespace tindra {

struct BatteryNotice {
  enum class Kind { pluggedIn, unplugged, low };

  static BatteryNotice pluggedIn(const BatteryStatus& status) { return {Kind::pluggedIn, status}; }
  static BatteryNotice unplugged(const BatteryStatus& status) { return {Kind::unplugged, status}; }
  static BatteryNotice low(const BatteryStatus& status) { return {Kind::low, status}; }

  Kind kind;
  BatteryStatus status;

  // Seconds on screen: 8 for the low warning, 4 for a power change.
  double duration() const { return kind == Kind::low ? 8.0 : 4.0; }

  friend bool operator==(const BatteryNotice&, const BatteryNotice&) = default;
};

template <>
struct EnumTable<BatteryNotice::Kind> {
  using E = BatteryNotice::Kind;
  static constexpr std::array cases{EnumCase{E::pluggedIn, "pluggedIn"},
                                    EnumCase{E::unplugged, "unplugged"}, EnumCase{E::low, "low"}};
};

}  // namespace tindra
