#include "weather/sun_times.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using SolarCalculator::Normal;
using SolarCalculator::PolarDay;
using SolarCalculator::PolarNight;

constexpr Normal kToday{1000, 2000};
constexpr Normal kTomorrow{87400, 88400};

TEST(SunTimes, NextMomentWalksThroughTodayThenTomorrow) {
  const SunTimes times{kToday, kTomorrow};
  EXPECT_EQ(times.next(0), SunTimes::Moment(SunTimes::Sunrise{1000}));
  EXPECT_EQ(times.next(999.5), SunTimes::Moment(SunTimes::Sunrise{1000}));
  // At the very moment it has happened: the next one is the sunset.
  EXPECT_EQ(times.next(1000), SunTimes::Moment(SunTimes::Sunset{2000}));
  EXPECT_EQ(times.next(2000), SunTimes::Moment(SunTimes::Sunrise{87400}));
  EXPECT_EQ(times.next(87400), SunTimes::Moment(SunTimes::Sunset{88400}));
  // Everything past: the last known sunset stays rather than inventing a time.
  EXPECT_EQ(times.next(90000), SunTimes::Moment(SunTimes::Sunset{88400}));
  EXPECT_EQ((SunTimes{kToday, std::nullopt}.next(2500)), SunTimes::Moment(SunTimes::Sunset{2000}));
}

TEST(SunTimes, PolarDaysShowTheirCaseAllDay) {
  EXPECT_EQ((SunTimes{PolarDay{}, kTomorrow}.next(0)), SunTimes::Moment(SunTimes::MidnightSun{}));
  EXPECT_EQ((SunTimes{PolarNight{}, kTomorrow}.next(87000)),
            SunTimes::Moment(SunTimes::PolarNight{}));
  // The last sunset before the midnight sun: once it has passed, tomorrow's case shows.
  EXPECT_EQ((SunTimes{kToday, PolarDay{}}.next(1500)), SunTimes::Moment(SunTimes::Sunset{2000}));
  EXPECT_EQ((SunTimes{kToday, PolarDay{}}.next(2500)), SunTimes::Moment(SunTimes::MidnightSun{}));
  EXPECT_EQ((SunTimes{kToday, PolarNight{}}.next(2500)), SunTimes::Moment(SunTimes::PolarNight{}));
}

TEST(SunTimes, TheEarlierOfTheTwoComesFirst) {
  // Whichever order the two are in, the earlier one still ahead comes next.
  const SunTimes times{Normal{5000, 3000}, std::nullopt};
  EXPECT_EQ(times.next(0), SunTimes::Moment(SunTimes::Sunset{3000}));
  EXPECT_EQ(times.next(3000), SunTimes::Moment(SunTimes::Sunrise{5000}));
  EXPECT_EQ(times.next(5000), SunTimes::Moment(SunTimes::Sunset{3000}));
}

}  // namespace
}  // namespace tindra
