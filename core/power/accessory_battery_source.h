// AccessoryBatterySource: where an accessory battery level came from, the system's power-source
// list or the system profiler's Bluetooth report.
#pragma once

#include <optional>
#include <string_view>

namespace tindra {

enum class AccessoryBatterySource { powerSources, systemProfiler };

std::string_view rawValue(AccessoryBatterySource source);
std::optional<AccessoryBatterySource> accessoryBatterySourceFromRaw(std::string_view raw);

}  // namespace tindra
