#include "weather/solar_calculator.h"

#include <cmath>
#include <expected>

#include <unicode/gregocal.h>

namespace tindra::SolarCalculator {
namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kJ2000 = 2451545;
constexpr double kDaysPerCentury = 36525;
constexpr double kUnixEpochJulianDay = 2440587.5;
// cos(90.833°): the sun's upper edge on the horizon, with the usual refraction.
constexpr double kCosineOfHorizonZenith = -0.01453808050249674;

double radians(double degrees) {
  return degrees * kPi / 180;
}
double degrees(double radians) {
  return radians * 180 / kPi;
}

struct CalendarDay {
  int year;
  int month;
  int day;
  double offsetHours;  // the zone's offset from GMT at noon of that day
};

std::optional<CalendarDay> calendarDay(double date, const icu::TimeZone& timeZone) {
  UErrorCode status = U_ZERO_ERROR;
  icu::GregorianCalendar calendar(timeZone, status);
  calendar.setTime(date * 1000, status);
  const int year = calendar.get(UCAL_EXTENDED_YEAR, status);
  const int month = calendar.get(UCAL_MONTH, status) + 1;
  const int day = calendar.get(UCAL_DATE, status);
  calendar.set(UCAL_HOUR_OF_DAY, 12);
  calendar.set(UCAL_MINUTE, 0);
  calendar.set(UCAL_SECOND, 0);
  calendar.set(UCAL_MILLISECOND, 0);
  const int offsetMilliseconds =
      calendar.get(UCAL_ZONE_OFFSET, status) + calendar.get(UCAL_DST_OFFSET, status);
  if (U_FAILURE(status)) return std::nullopt;
  return CalendarDay{year, month, day, offsetMilliseconds / 3'600'000.0};
}

Day polarCase(double latitude, double declination) {
  if ((latitude >= 0) == (declination < 0)) return PolarNight{};
  return PolarDay{};
}

// Minutes after midnight UTC of sunrise (`sign` −1) or sunset (+1), refined over three passes
// from the local noon estimate; the polar case when a pass finds no crossing.
std::expected<double, Day> eventMinutes(const CalendarDay& day, double julianDay,
                                        const GeoCoordinate& coordinate, double sign) {
  const double latitude = radians(coordinate.latitude);
  double when = julianDay + 0.5 - day.offsetHours / 24;
  double minutes = 0;
  for (int pass = 0; pass < 3; ++pass) {
    const SunPosition sun = sunPosition((when - kJ2000) / kDaysPerCentury);
    const double declination = radians(sun.declination);
    const double cosHourAngle =
        kCosineOfHorizonZenith / (std::cos(latitude) * std::cos(declination)) -
        std::tan(latitude) * std::tan(declination);
    if (!(std::fabs(cosHourAngle) <= 1)) {
      return std::unexpected(polarCase(coordinate.latitude, sun.declination));
    }
    const double hourAngle = sign * degrees(std::acos(cosHourAngle));
    minutes = 720 - 4 * coordinate.longitude + 4 * hourAngle - sun.equationOfTime;
    when = julianDay + minutes / 1440;
  }
  return minutes;
}

bool isValid(const GeoCoordinate& coordinate) {
  return std::isfinite(coordinate.latitude) && std::fabs(coordinate.latitude) <= 90 &&
         std::isfinite(coordinate.longitude) && std::fabs(coordinate.longitude) <= 180;
}

}  // namespace

double julianDay(int year, int month, int day) {
  if (month < 3) {
    year -= 1;
    month += 12;
  }
  const int b = 2 - year / 100 + year / 400;
  return std::trunc(365.25 * (year + 4716)) + std::trunc(30.6001 * (month + 1)) + day + b - 1524.5;
}

SunPosition sunPosition(double t) {
  const double meanLongitude = std::fmod(280.46646 + t * (36000.76983 + 0.0003032 * t), 360);
  const double meanAnomaly = 357.52911 + t * (35999.05029 - 0.0001537 * t);
  const double m = radians(meanAnomaly);
  const double centre = std::sin(m) * (1.914602 - t * (0.004817 + 0.000014 * t)) +
                        std::sin(2 * m) * (0.019993 - 0.000101 * t) + std::sin(3 * m) * 0.000289;
  const double omega = radians(125.04 - 1934.136 * t);
  const double apparentLongitude = meanLongitude + centre - 0.00569 - 0.00478 * std::sin(omega);
  const double meanObliquity =
      23 + (26 + (21.448 - t * (46.815 + t * (0.00059 - 0.001813 * t))) / 60) / 60;
  const double obliquity = radians(meanObliquity + 0.00256 * std::cos(omega));
  const double declination =
      degrees(std::asin(std::sin(obliquity) * std::sin(radians(apparentLongitude))));

  const double eccentricity = 0.016708634 - t * (0.000042037 + 0.0000001267 * t);
  const double y = std::pow(std::tan(obliquity / 2), 2);
  const double l0 = radians(meanLongitude);
  const double equation = y * std::sin(2 * l0) - 2 * eccentricity * std::sin(m) +
                          4 * eccentricity * y * std::sin(m) * std::cos(2 * l0) -
                          0.5 * y * y * std::sin(4 * l0) -
                          1.25 * eccentricity * eccentricity * std::sin(2 * m);
  return {declination, 4 * degrees(equation)};
}

std::optional<Day> day(double date, const GeoCoordinate& coordinate,
                       const icu::TimeZone& timeZone) {
  if (!isValid(coordinate)) return std::nullopt;
  const std::optional<CalendarDay> calendar = calendarDay(date, timeZone);
  if (!calendar) return std::nullopt;
  const double jd = julianDay(calendar->year, calendar->month, calendar->day);
  const auto sunrise = eventMinutes(*calendar, jd, coordinate, -1);
  if (!sunrise) return sunrise.error();
  const auto sunset = eventMinutes(*calendar, jd, coordinate, +1);
  if (!sunset) return sunset.error();
  const double startOfUTCDay = (jd - kUnixEpochJulianDay) * 86400;
  return Normal{startOfUTCDay + *sunrise * 60, startOfUTCDay + *sunset * 60};
}

}  // namespace tindra::SolarCalculator
