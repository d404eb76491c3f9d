// SolarCalculator: sunrise and sunset computed on the machine from a position, with the NOAA
// solar position equations (after Meeus) refined over three passes, or the polar day or night
// when the sun does not cross the horizon. Accurate to about a minute away from the poles.
#pragma once

#include <optional>
#include <variant>

#include <unicode/timezone.h>

#include "weather/geo_coordinate.h"

namespace tindra::SolarCalculator {

struct Normal {
  double sunrise;  // seconds since 1970
  double sunset;
  friend bool operator==(const Normal&, const Normal&) = default;
};
struct PolarDay {
  friend bool operator==(const PolarDay&, const PolarDay&) = default;
};
struct PolarNight {
  friend bool operator==(const PolarNight&, const PolarNight&) = default;
};
using Day = std::variant<Normal, PolarDay, PolarNight>;

struct SunPosition {
  double declination;     // degrees
  double equationOfTime;  // minutes
};

// The sun on the calendar day of `date` in `timeZone`; none for a latitude beyond ±90, a
// longitude beyond ±180, or a non-finite one.
std::optional<Day> day(double date, const GeoCoordinate& coordinate, const icu::TimeZone& timeZone);

// The Julian day at 0 h UT of a Gregorian date.
double julianDay(int year, int month, int day);

// Declination and equation of time at `julianCentury` (Julian centuries since J2000.0).
SunPosition sunPosition(double julianCentury);

}  // namespace tindra::SolarCalculator
