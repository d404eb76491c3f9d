#include "power/upower_device.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

std::optional<BatteryStatus> UPowerDevice::batteryStatus() const {
  if (type != typeBattery || !isPresent || !std::isfinite(percentage)) return std::nullopt;
  const auto current = static_cast<State>(state);
  const bool charging = current == State::charging;
  const bool charged = current == State::fullyCharged;
  // A battery held below full by a charge limit reports "pending charge" while on power.
  const bool pluggedIn = charging || charged || current == State::pendingCharge;
  const bool discharging = current == State::discharging || current == State::pendingDischarge ||
                           current == State::empty;
  const double clamped = std::clamp(percentage, 0.0, 100.0);
  return BatteryStatus(static_cast<int>(std::lround(clamped)), pluggedIn, charging, charged,
                       discharging ? minutes(timeToEmpty) : std::nullopt,
                       charging ? minutes(timeToFull) : std::nullopt);
}

}  // namespace tindra
