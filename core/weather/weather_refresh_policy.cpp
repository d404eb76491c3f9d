#include "weather/weather_refresh_policy.h"

#include <algorithm>

namespace tindra::WeatherRefreshPolicy {

bool shouldRefresh(const std::optional<WeatherSnapshot>& snapshot,
                   std::optional<double> lastAttempt, double now, double latitude,
                   double longitude) {
  // A clock set back before the last attempt lifts the spacing rather than blocking for good.
  if (lastAttempt && now >= *lastAttempt && now - *lastAttempt < attemptSpacing) return false;
  if (!snapshot) return true;
  const GeoCoordinate here = GeoCoordinate{latitude, longitude}.roundedToHundredths();
  if (here.distance(snapshot->coordinate) > movementThreshold) return true;
  if (now < snapshot->fetchedAt) return true;
  return now >= nextRefresh(*snapshot);
}

double nextRefresh(const WeatherSnapshot& snapshot) {
  const double floor = snapshot.fetchedAt + minimumRefreshInterval;
  return snapshot.expiresAt ? std::max(floor, *snapshot.expiresAt) : floor;
}

bool isFresh(const WeatherSnapshot& snapshot, double now) {
  return now >= snapshot.fetchedAt && now - snapshot.fetchedAt <= freshness;
}

}  // namespace tindra::WeatherRefreshPolicy
