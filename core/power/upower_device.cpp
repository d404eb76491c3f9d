#include "power/upower_device.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "power/power_source_parser.h"

namespace tindra {

namespace {

using State = UPowerDevice::State;

// Whole minutes for a positive time in seconds, nothing for "unknown" or nonsense.
std::optional<int> minutes(std::int64_t seconds) {
  if (seconds <= 0) return std::nullopt;
  const std::int64_t whole = seconds / 60 + (seconds % 60 >= 30 ? 1 : 0);
  if (whole > std::numeric_limits<int>::max()) return std::nullopt;
  return static_cast<int>(whole);
}

}  // namespace

std::optional<PowerSourceDescription> UPowerDevice::powerSourceDescription() const {
  if (type != typeBattery || !isPresent || !std::isfinite(percentage)) return std::nullopt;
  const auto current = static_cast<State>(state);
  const bool charging = current == State::charging;
  const bool charged = current == State::fullyCharged;
  // A battery held below full by a charge limit reports "pending charge" while on power.
  const bool pluggedIn = charging || charged || current == State::pendingCharge;
  const bool discharging = current == State::discharging || current == State::pendingDischarge ||
                           current == State::empty;
  PowerSourceDescription description{
      {"Type", "InternalBattery"},
      {"Is Present", true},
      {"Current Capacity", std::lround(std::clamp(percentage, 0.0, 100.0))},
      {"Max Capacity", 100},
      {"Power Source State", pluggedIn ? "AC Power" : "Battery Power"},
      {"Is Charging", charging},
      {"Is Charged", charged},
  };
  if (const auto left = minutes(timeToEmpty); discharging && left) {
    description.emplace("Time to Empty", *left);
  }
  if (const auto left = minutes(timeToFull); charging && left) {
    description.emplace("Time to Full Charge", *left);
  }
  return description;
}

std::optional<BatteryStatus> UPowerDevice::batteryStatus(bool isLowPowerMode) const {
  const std::optional<PowerSourceDescription> description = powerSourceDescription();
  if (!description) return std::nullopt;
  return PowerSourceParser::parse(std::span(&*description, 1), isLowPowerMode);
}

}  // namespace tindra
