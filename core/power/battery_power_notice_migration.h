// BatteryPowerNoticeMigration: what to write when the old single power-notice setting is split
// into separate plug-in and unplug settings. A choice the user already made is never overwritten.
#pragma once

#include <optional>
#include <string_view>

namespace tindra {

struct BatteryPowerNoticeMigration {
  static constexpr std::string_view oldKey = "batteryPowerNotices";

  std::optional<bool> pluggedInNotice;  // none: leave the key alone
  std::optional<bool> unpluggedNotice;  // none: leave the key alone

  // None when there is no old value; otherwise the old value for each new key not yet set.
  static std::optional<BatteryPowerNoticeMigration> migrate(std::optional<bool> old,
                                                            std::optional<bool> pluggedInNotice,
                                                            std::optional<bool> unpluggedNotice);

  friend bool operator==(const BatteryPowerNoticeMigration&,
                         const BatteryPowerNoticeMigration&) = default;
};

}  // namespace tindra
