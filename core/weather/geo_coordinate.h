// GeoCoordinate: a position in degrees (latitude north positive, longitude east positive), with
// the great-circle distance between two positions and the JSON form stored with a forecast.
#pragma once

#include <optional>

#include "base/json_value.h"

namespace tindra {

struct GeoCoordinate {
  double latitude = 0;
  double longitude = 0;

  // Both degrees rounded half away from zero to two decimals (about 1 km), as sent to the service.
  GeoCoordinate roundedToHundredths() const;

  // Haversine distance in metres on a sphere of radius 6,371,000 m.
  double distance(const GeoCoordinate& other) const;

  friend bool operator==(const GeoCoordinate&, const GeoCoordinate&) = default;
};

// {"latitude": …, "longitude": …}; reading needs both members as numbers.
JSONValue toJSON(const GeoCoordinate& coordinate);
std::optional<GeoCoordinate> geoCoordinateFromJSON(const JSONValue& value);

}  // namespace tindra
