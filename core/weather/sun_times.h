// SunTimes: today's and (when known) tomorrow's sun, and the one moment the weather view shows
// next: the coming sunrise or sunset, or the midnight sun or polar night in force.
#pragma once

#include <optional>
#include <variant>

#include "weather/solar_calculator.h"

namespace tindra {

struct SunTimes {
  struct Sunrise {
    double date;
    friend bool operator==(const Sunrise&, const Sunrise&) = default;
  };
  struct Sunset {
    double date;
    friend bool operator==(const Sunset&, const Sunset&) = default;
  };
  struct MidnightSun {
    friend bool operator==(const MidnightSun&, const MidnightSun&) = default;
  };
  struct PolarNight {
    friend bool operator==(const PolarNight&, const PolarNight&) = default;
  };
  using Moment = std::variant<Sunrise, Sunset, MidnightSun, PolarNight>;

  SolarCalculator::Day today;
  std::optional<SolarCalculator::Day> tomorrow;

  // Today decides while it has something ahead: a polar day or night all day long, else its
  // first sunrise or sunset strictly after `now`. Once both have passed, tomorrow decides the
  // same way. With nothing ahead (tomorrow unknown or also past) the last known sunset stays.
  Moment next(double now) const;
};

}  // namespace tindra
