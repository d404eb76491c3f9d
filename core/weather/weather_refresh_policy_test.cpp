#include "weather/weather_refresh_policy.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

namespace Policy = WeatherRefreshPolicy;

constexpr double kFetched = 1'700'000'000;

WeatherSnapshot snapshotAt(GeoCoordinate coordinate, std::optional<double> expiresAt) {
  WeatherSnapshot snapshot;
  snapshot.coordinate = coordinate;
  snapshot.fetchedAt = kFetched;
  snapshot.expiresAt = expiresAt;
  return snapshot;
}

// The latitude `metres` north of `from` on the sphere the distance uses.
double northBy(double latitude, double metres) {
  return latitude + metres / 12'742'000 * 2 * 180 / 3.141592653589793;
}

TEST(WeatherRefreshPolicy, DistanceIsHaversineWithTheClamp) {
  const GeoCoordinate oslo{59.91, 10.75};
  EXPECT_EQ(oslo.distance(oslo), 0);
  EXPECT_NEAR(oslo.distance({northBy(59.91, 4900), 10.75}), 4900, 1e-6);
  EXPECT_NEAR((GeoCoordinate{0, 0}.distance({0, 180})), 12'742'000 * 3.141592653589793 / 2, 1e-3);
  // Antipodes: rounding may push the haversine term past 1; the clamp keeps the result finite.
  EXPECT_NEAR((GeoCoordinate{45, 10}.distance({-45, -170})), 20'015'086.796, 1e-3);
  EXPECT_NEAR((GeoCoordinate{0, 179.99}.distance({0, -179.99})), 2223.9, 0.1);
  EXPECT_EQ((GeoCoordinate{59.9139, -0.004}.roundedToHundredths()), (GeoCoordinate{59.91, 0}));
  EXPECT_EQ((GeoCoordinate{-0.005, 0.015}.roundedToHundredths()), (GeoCoordinate{-0.01, 0.02}));
}

TEST(WeatherRefreshPolicy, AttemptSpacingComesFirst) {
  const WeatherSnapshot stale = snapshotAt({59.91, 10.75}, std::nullopt);
  const double now = kFetched + 86400;
  EXPECT_TRUE(Policy::shouldRefresh(stale, std::nullopt, now, 59.91, 10.75));
  EXPECT_FALSE(Policy::shouldRefresh(stale, now - 599, now, 59.91, 10.75));
  EXPECT_TRUE(Policy::shouldRefresh(stale, now - 600, now, 59.91, 10.75));
  // Even with no snapshot at all, and even far away.
  EXPECT_FALSE(Policy::shouldRefresh(std::nullopt, now - 1, now, 0, 0));
  EXPECT_FALSE(Policy::shouldRefresh(std::nullopt, now, now, 0, 0));
  EXPECT_TRUE(Policy::shouldRefresh(std::nullopt, now - 600, now, 0, 0));
  // An attempt "in the future" (clock set back) does not hold requests off.
  EXPECT_TRUE(Policy::shouldRefresh(std::nullopt, now + 5, now, 0, 0));
}

TEST(WeatherRefreshPolicy, MovingMoreThanFiveKilometresRefreshesEarly) {
  const WeatherSnapshot kept = snapshotAt({60.00, 10.00}, kFetched + 3600);
  const double soon = kFetched + 900;  // before the next refresh, after the attempt spacing
  const double lastAttempt = kFetched;
  EXPECT_FALSE(Policy::shouldRefresh(kept, lastAttempt, soon, northBy(60, 4900), 10.00));
  // 5.1 km north: the position rounds to 60.05, about 5.56 km from the kept one.
  EXPECT_TRUE(Policy::shouldRefresh(kept, lastAttempt, soon, northBy(60, 5100), 10.00));
  // 4.9 km rounds to 60.04, about 4.45 km: still not moved.
  EXPECT_NEAR((GeoCoordinate{60.04, 10}.distance({60, 10})), 4448, 1);
  // The move still waits for the attempt spacing.
  EXPECT_FALSE(Policy::shouldRefresh(kept, soon - 300, soon, northBy(60, 5100), 10.00));
}

TEST(WeatherRefreshPolicy, ExpiryHonouredAboveTheThirtyMinuteFloor) {
  const GeoCoordinate here{59.91, 10.75};
  const WeatherSnapshot early = snapshotAt(here, kFetched + 600);
  EXPECT_EQ(Policy::nextRefresh(early), kFetched + 1800);
  EXPECT_FALSE(Policy::shouldRefresh(early, std::nullopt, kFetched + 1799, 59.91, 10.75));
  EXPECT_TRUE(Policy::shouldRefresh(early, std::nullopt, kFetched + 1800, 59.91, 10.75));

  const WeatherSnapshot late = snapshotAt(here, kFetched + 5400);
  EXPECT_EQ(Policy::nextRefresh(late), kFetched + 5400);
  EXPECT_FALSE(Policy::shouldRefresh(late, std::nullopt, kFetched + 5399, 59.91, 10.75));
  EXPECT_TRUE(Policy::shouldRefresh(late, std::nullopt, kFetched + 5400, 59.91, 10.75));

  EXPECT_EQ(Policy::nextRefresh(snapshotAt(here, std::nullopt)), kFetched + 1800);
  // A clock set back before the fetch refreshes at once.
  EXPECT_TRUE(Policy::shouldRefresh(late, std::nullopt, kFetched - 1, 59.91, 10.75));
}

TEST(WeatherRefreshPolicy, FreshForThreeHoursInclusive) {
  const WeatherSnapshot kept = snapshotAt({59.91, 10.75}, std::nullopt);
  EXPECT_TRUE(Policy::isFresh(kept, kFetched));
  EXPECT_TRUE(Policy::isFresh(kept, kFetched + 10800));
  EXPECT_FALSE(Policy::isFresh(kept, kFetched + 10801));
  EXPECT_FALSE(Policy::isFresh(kept, kFetched - 1));
}

}  // namespace
}  // namespace tindra
