// BatteryStatus: one reading of the Mac's internal battery, as the views and the notice tracker
// see it. The percentage is always within 0 ... 100; minutes are present only when known.
#pragma once

#include <optional>
#include <string_view>

namespace tindra {

struct BatteryStatus {
  // Clamps `percent` into 0 ... 100.
  explicit BatteryStatus(int percent, bool isPluggedIn = false, bool isCharging = false,
                         bool isCharged = false, std::optional<int> minutesToEmpty = std::nullopt,
                         std::optional<int> minutesToFull = std::nullopt,
                         bool isLowPowerMode = false);

  int percent;
  bool isPluggedIn;
  bool isCharging;
  bool isCharged;
  std::optional<int> minutesToEmpty;  // absent while plugged in or still estimating
  std::optional<int> minutesToFull;   // absent while not charging or still estimating
  bool isLowPowerMode;

  // The system symbol that pictures this reading ("battery.100percent.bolt", "powerplug.fill",
  // "battery.75percent", ...).
  std::string_view symbolName() const;

  friend bool operator==(const BatteryStatus&, const BatteryStatus&) = default;
};

}  // namespace tindra
