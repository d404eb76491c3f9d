// BatteryThreshold: the low-battery warning level in percent, which the user picks from 5 to 50.
#pragma once

#include <algorithm>
#include <cstdint>

namespace tindra {

struct BatteryThreshold {
  static constexpr int minimum = 5;
  static constexpr int maximum = 50;
  static constexpr int defaultValue = 20;

  // `value` brought into minimum ... maximum.
  static constexpr int clamped(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, minimum, maximum));
  }
};

}  // namespace tindra
