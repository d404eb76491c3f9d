// WeatherRefreshPolicy: when the weather is fetched again and whether a kept snapshot may still be
// shown. At most one attempt every ten minutes whatever its outcome; otherwise a move of more than
// 5 km, a clock set back, or the later of the service's expiry and 30 minutes after the fetch.
#pragma once

#include <optional>

#include "weather/weather_snapshot.h"

namespace tindra::WeatherRefreshPolicy {

inline constexpr double attemptSpacing = 600;
inline constexpr double minimumRefreshInterval = 1800;
inline constexpr double movementThreshold = 5000;  // metres
inline constexpr double freshness = 10800;

// Whether a request is due at `now` for the position (rounded to hundredths before comparing).
bool shouldRefresh(const std::optional<WeatherSnapshot>& snapshot,
                   std::optional<double> lastAttempt, double now, double latitude,
                   double longitude);

// The later of `fetchedAt` + 30 minutes and `expiresAt`.
double nextRefresh(const WeatherSnapshot& snapshot);

// True from `fetchedAt` through three hours after it, both ends included.
bool isFresh(const WeatherSnapshot& snapshot, double now);

}  // namespace tindra::WeatherRefreshPolicy
