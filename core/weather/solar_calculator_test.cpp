#include "weather/solar_calculator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>

#include "base/internet_date_time.h"

namespace tindra {
namespace {

using SolarCalculator::Normal;
using SolarCalculator::PolarDay;
using SolarCalculator::PolarNight;

std::unique_ptr<icu::TimeZone> zone(const char* id) {
  return std::unique_ptr<icu::TimeZone>(icu::TimeZone::createTimeZone(icu::UnicodeString(id)));
}

std::optional<SolarCalculator::Day> dayAt(const char* date, GeoCoordinate where, const char* id) {
  return SolarCalculator::day(*parseInternetDateTime(date), where, *zone(id));
}

// Reference times from suncalc 2.0.2 (npm), printed by scripts/solar-reference.mjs: it was run
// once from a scratch folder with suncalc installed, asking for each date's local mean solar
// noon. Values are seconds since 1970 (UTC); ours must agree within a minute.
struct Reference {
  const char* place;
  GeoCoordinate where;
  const char* zone;
  const char* localNoon;  // a moment on the local calendar day
  double sunrise;
  double sunset;
};

constexpr Reference kReferences[] = {
    {"equator", {0, 0}, "UTC", "2024-03-20T12:00:00Z", 1710914643, 1710958234},
    {"Oslo", {59.91, 10.75}, "Europe/Oslo", "2024-05-18T12:00:00+02:00", 1715999539, 1716062173},
    {"Oslo", {59.91, 10.75}, "Europe/Oslo", "2024-12-21T12:00:00+01:00", 1734769100, 1734790336},
    // New York on the day before and the day of the change to daylight saving time.
    {"New York",
     {40.71, -74.01},
     "America/New_York",
     "2024-03-09T12:00:00-05:00",
     1709982991,
     1710025012},
    {"New York",
     {40.71, -74.01},
     "America/New_York",
     "2024-03-10T12:00:00-04:00",
     1710069295,
     1710111478},
    // Sydney across the end of daylight saving time.
    {"Sydney",
     {-33.87, 151.21},
     "Australia/Sydney",
     "2024-04-06T12:00:00+11:00",
     1712347866,
     1712389410},
    {"Sydney",
     {-33.87, 151.21},
     "Australia/Sydney",
     "2024-04-07T12:00:00+10:00",
     1712434311,
     1712475732},
    // Just south of the Arctic Circle, where the times move fastest.
    {"Rovaniemi",
     {66.5, 25.73},
     "Europe/Helsinki",
     "2024-03-01T12:00:00+02:00",
     1709271001,
     1709307008},
    {"Rovaniemi",
     {66.5, 25.73},
     "Europe/Helsinki",
     "2024-12-10T12:00:00+02:00",
     1733820416,
     1733830372},
    // Just north of the Antarctic Circle in midwinter and in near-midnight-sun summer.
    {"Antarctic", {-66, 140}, "Etc/GMT-10", "2024-06-10T12:00:00+10:00", 1717981500, 1717992824},
    {"Antarctic", {-66, 140}, "Etc/GMT-10", "2024-12-10T12:00:00+10:00", 1733756924, 1733839386},
};

TEST(SolarCalculator, AgreesWithAnIndependentImplementationWithinAMinute) {
  for (const Reference& reference : kReferences) {
    const auto day = dayAt(reference.localNoon, reference.where, reference.zone);
    ASSERT_TRUE(day.has_value()) << reference.place;
    const auto* normal = std::get_if<Normal>(&*day);
    ASSERT_NE(normal, nullptr) << reference.place << " " << reference.localNoon;
    EXPECT_NEAR(normal->sunrise, reference.sunrise, 60)
        << reference.place << " " << reference.localNoon;
    EXPECT_NEAR(normal->sunset, reference.sunset, 60)
        << reference.place << " " << reference.localNoon;
  }
}

TEST(SolarCalculator, PolarDayAndNightSwapBetweenHemispheres) {
  EXPECT_EQ(dayAt("2024-06-21T12:00:00Z", {78, 15}, "UTC"), SolarCalculator::Day(PolarDay{}));
  EXPECT_EQ(dayAt("2024-12-21T12:00:00Z", {78, 15}, "UTC"), SolarCalculator::Day(PolarNight{}));
  EXPECT_EQ(dayAt("2024-06-21T12:00:00Z", {-78, 15}, "UTC"), SolarCalculator::Day(PolarNight{}));
  EXPECT_EQ(dayAt("2024-12-21T12:00:00Z", {-78, 15}, "UTC"), SolarCalculator::Day(PolarDay{}));
  // The poles themselves never see a crossing.
  EXPECT_EQ(dayAt("2024-03-01T12:00:00Z", {90, 0}, "UTC"), SolarCalculator::Day(PolarNight{}));
  EXPECT_EQ(dayAt("2024-03-01T12:00:00Z", {-90, 0}, "UTC"), SolarCalculator::Day(PolarDay{}));
}

TEST(SolarCalculator, InvalidCoordinatesGiveNothing) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  constexpr double inf = std::numeric_limits<double>::infinity();
  for (const GeoCoordinate where :
       {GeoCoordinate{91, 0}, GeoCoordinate{-90.0001, 0}, GeoCoordinate{0, 180.0001},
        GeoCoordinate{0, nan}, GeoCoordinate{nan, 0}, GeoCoordinate{inf, 0}}) {
    EXPECT_EQ(dayAt("2024-03-01T12:00:00Z", where, "UTC"), std::nullopt)
        << where.latitude << " " << where.longitude;
  }
  EXPECT_TRUE(dayAt("2024-03-01T12:00:00Z", {-90, -180}, "UTC").has_value());
}

TEST(SolarCalculator, DayIsTheCalendarDayInTheGivenZone) {
  // 20:00 UTC on 9 March is already 10 March in Tokyo: the same moment gives Tokyo's 10 March.
  const double moment = *parseInternetDateTime("2024-03-09T20:00:00Z");
  const GeoCoordinate tokyo{35.68, 139.69};
  const auto inTokyo = std::get<Normal>(*SolarCalculator::day(moment, tokyo, *zone("Asia/Tokyo")));
  const auto inUTC = std::get<Normal>(*SolarCalculator::day(moment, tokyo, *zone("UTC")));
  EXPECT_NEAR(inTokyo.sunrise - inUTC.sunrise, 86400, 180);
  EXPECT_LT(inTokyo.sunrise, *parseInternetDateTime("2024-03-10T06:00:00+09:00"));
  EXPECT_GT(inTokyo.sunrise, *parseInternetDateTime("2024-03-10T05:30:00+09:00"));
}

TEST(SolarCalculator, LongitudeOneEightyEitherWayGivesTheSameClockTimes) {
  // In a zone twelve hours east the two sides of the date line land a day apart; the clock
  // times agree to within the formulas' drift over that day.
  for (const char* date : {"2024-01-15T12:00:00+12:00", "2024-06-15T12:00:00+12:00"}) {
    const auto east = std::get<Normal>(*dayAt(date, {-17.7, 180}, "Etc/GMT-12"));
    const auto west = std::get<Normal>(*dayAt(date, {-17.7, -180}, "Etc/GMT-12"));
    EXPECT_NEAR(std::fmod(west.sunrise - east.sunrise, 86400), 0, 60) << date;
    EXPECT_NEAR(std::fmod(west.sunset - east.sunset, 86400), 0, 60) << date;
    EXPECT_NEAR(west.sunrise - east.sunrise, 86400, 60) << date;
  }
}

TEST(SolarCalculator, JulianDayAndSunPositionReferencePoints) {
  EXPECT_EQ(SolarCalculator::julianDay(2000, 1, 1), 2451544.5);
  EXPECT_EQ(SolarCalculator::julianDay(1957, 10, 4), 2436115.5);  // Sputnik, Meeus example 7.a
  EXPECT_EQ(SolarCalculator::julianDay(1970, 1, 1), 2440587.5);
  EXPECT_EQ(SolarCalculator::julianDay(2024, 2, 29) + 1, SolarCalculator::julianDay(2024, 3, 1));
  EXPECT_EQ(SolarCalculator::julianDay(1900, 2, 28) + 1, SolarCalculator::julianDay(1900, 3, 1));
  // Meeus example 25.a, 1992 October 13.0 TD: declination −7.785°; the equation of time that
  // day is about +13.7 minutes.
  const auto sun = SolarCalculator::sunPosition((2448908.5 - 2451545) / 36525);
  EXPECT_NEAR(sun.declination, -7.785, 0.01);
  EXPECT_NEAR(sun.equationOfTime, 13.7, 0.1);
}

}  // namespace
}  // namespace tindra
