// AccessoryBatterySource: where an accessory battery level came from, the system's power-source
// list or the system profiler's Bluetooth report.
#pragma once

#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class AccessoryBatterySource { powerSources, systemProfiler };

template <>
struct EnumTable<AccessoryBatterySource> {
  static constexpr std::array cases{
      EnumCase{AccessoryBatterySource::powerSources, "powerSources"},
      EnumCase{AccessoryBatterySource::systemProfiler, "systemProfiler"}};
};

}  // namespace tindra
