#include "power/pmset_accessory_parser.h"

#include <algorithm>
#include <optional>

#include "base/ascii_text.h"

namespace tindra {
namespace {

std::optional<AccessoryBatteryPart> partNamed(std::string_view label) {
  const std::string lowered = asciiLowercased(trimmedASCII(label));
  if (lowered == "left") return AccessoryBatteryPart::left;
  if (lowered == "right") return AccessoryBatteryPart::right;
  if (lowered == "case") return AccessoryBatteryPart::caseLevel;
  return std::nullopt;
}

bool isInternalBattery(std::string_view name) {
  return name.starts_with("InternalBattery");
}

}  // namespace

std::pair<std::string, AccessoryBatteryPart> PmsetAccessoryParser::split(std::string_view name) {
  const std::string_view whole = trimmedASCII(name);
  const std::size_t open = whole.rfind('(');
  if (whole.ends_with(')') && open != std::string_view::npos) {
    const std::optional<AccessoryBatteryPart> part =
        partNamed(whole.substr(open + 1, whole.size() - open - 2));
    const std::string_view device = trimmedASCII(whole.substr(0, open));
    // A bare "(Left)" names no device, so it is kept whole.
    if (part && !device.empty()) return {std::string(device), *part};
  }
  return {std::string(whole), AccessoryBatteryPart::main};
}

std::vector<PmsetAccessoryReading> PmsetAccessoryParser::readings(
    std::span<const PowerSource> sources) {
  std::vector<PmsetAccessoryReading> found;
  for (const PowerSource& source : sources) {
    if (source.level < 0 || source.level > 100) continue;
    auto [device, part] = split(source.name);
    if (device.empty() || isInternalBattery(device)) continue;
    auto reading = std::ranges::find(found, device, &PmsetAccessoryReading::name);
    if (reading == found.end()) reading = found.insert(found.end(), {std::move(device), {}});
    reading->battery.setLevel(part, source.level);
  }
  return found;
}

}  // namespace tindra
