#include "power/power_source_parser.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tindra {
namespace {

constexpr std::string_view typeKey = "Type";
constexpr std::string_view internalBatteryType = "InternalBattery";
constexpr std::string_view isPresentKey = "Is Present";
constexpr std::string_view currentCapacityKey = "Current Capacity";
constexpr std::string_view maxCapacityKey = "Max Capacity";
constexpr std::string_view powerSourceStateKey = "Power Source State";
constexpr std::string_view acPowerState = "AC Power";
constexpr std::string_view isChargingKey = "Is Charging";
constexpr std::string_view isChargedKey = "Is Charged";
constexpr std::string_view timeToEmptyKey = "Time to Empty";
constexpr std::string_view timeToFullKey = "Time to Full Charge";

// The system reports 0 or a large sentinel while it is still estimating.
constexpr std::int64_t longestEstimate = 5999;

const PowerSourceValue* value(const PowerSourceDescription& description, std::string_view key) {
  const auto found = description.find(key);
  return found == description.end() ? nullptr : &found->second;
}

std::optional<std::int64_t> integer(const PowerSourceDescription& description,
                                    std::string_view key) {
  const PowerSourceValue* found = value(description, key);
  return found ? found->integer() : std::nullopt;
}

std::optional<bool> boolean(const PowerSourceDescription& description, std::string_view key) {
  const PowerSourceValue* found = value(description, key);
  return found ? found->boolean() : std::nullopt;
}

bool hasString(const PowerSourceDescription& description, std::string_view key,
               std::string_view expected) {
  const PowerSourceValue* found = value(description, key);
  const std::string* text = found ? found->string() : nullptr;
  return text && *text == expected;
}

std::optional<int> minutesEstimate(const PowerSourceDescription& description,
                                   std::string_view key) {
  const std::optional<std::int64_t> minutes = integer(description, key);
  if (!minutes || *minutes < 1 || *minutes > longestEstimate) return std::nullopt;
  return static_cast<int>(*minutes);
}

std::optional<int> percent(const PowerSourceDescription& description) {
  const std::optional<std::int64_t> current = integer(description, currentCapacityKey);
  if (!current || *current < 0) return std::nullopt;
  const std::optional<std::int64_t> max = integer(description, maxCapacityKey);
  if (max && *max < 1) return std::nullopt;
  // A missing maximum means the current capacity is already a percentage.
  const double ratio = static_cast<double>(*current) / static_cast<double>(max.value_or(100));
  // Clamped before rounding so an absurd capacity cannot overflow the conversion.
  return static_cast<int>(std::lround(std::clamp(ratio * 100, 0.0, 100.0)));
}

}  // namespace

std::optional<BatteryStatus> PowerSourceParser::parse(
    std::span<const PowerSourceDescription> descriptions, bool isLowPowerMode) {
  const auto battery = std::ranges::find_if(descriptions, [](const auto& description) {
    return hasString(description, typeKey, internalBatteryType);
  });
  if (battery == descriptions.end()) return std::nullopt;
  if (boolean(*battery, isPresentKey) == false) return std::nullopt;
  const std::optional<int> level = percent(*battery);
  if (!level) return std::nullopt;

  const bool isPluggedIn = hasString(*battery, powerSourceStateKey, acPowerState);
  const bool isCharging = boolean(*battery, isChargingKey).value_or(false);
  return BatteryStatus(
      *level, isPluggedIn, isCharging, boolean(*battery, isChargedKey).value_or(false),
      isPluggedIn ? std::nullopt : minutesEstimate(*battery, timeToEmptyKey),
      isCharging ? minutesEstimate(*battery, timeToFullKey) : std::nullopt, isLowPowerMode);
}

}  // namespace tindra
