#include "power/battery_power_notice_migration.h"

namespace tindra {

std::optional<BatteryPowerNoticeMigration> BatteryPowerNoticeMigration::migrate(
    std::optional<bool> old, std::optional<bool> pluggedInNotice,
    std::optional<bool> unpluggedNotice) {
  if (!old) return std::nullopt;
  BatteryPowerNoticeMigration migration;
  if (!pluggedInNotice) migration.pluggedInNotice = old;
  if (!unpluggedNotice) migration.unpluggedNotice = old;
  return migration;
}

}  // namespace tindra
