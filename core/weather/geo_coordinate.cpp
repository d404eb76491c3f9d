#include "weather/geo_coordinate.h"

#include <algorithm>
#include <cmath>

namespace tindra {
namespace {

constexpr double kRadiansPerDegree = 3.141592653589793 / 180;
constexpr double kEarthDiameterMetres = 12'742'000;

double roundedToHundredths(double degrees) {
  // Adding zero turns -0.0 into 0.0, so a position just west of Greenwich is not sent as "-0.00".
  return std::round(degrees * 100) / 100 + 0.0;
}

double squaredSineOfHalf(double radians) {
  const double s = std::sin(radians / 2);
  return s * s;
}

}  // namespace

GeoCoordinate GeoCoordinate::roundedToHundredths() const {
  return {tindra::roundedToHundredths(latitude), tindra::roundedToHundredths(longitude)};
}

double GeoCoordinate::distance(const GeoCoordinate& other) const {
  const double phi1 = latitude * kRadiansPerDegree;
  const double phi2 = other.latitude * kRadiansPerDegree;
  const double deltaLambda = (other.longitude - longitude) * kRadiansPerDegree;
  const double a = squaredSineOfHalf(phi2 - phi1) +
                   std::cos(phi1) * std::cos(phi2) * squaredSineOfHalf(deltaLambda);
  // Rounding can push `a` a hair above 1 for antipodal points; the clamp keeps the root real.
  return kEarthDiameterMetres * std::atan2(std::sqrt(a), std::sqrt(std::max(1 - a, 0.0)));
}

JSONValue toJSON(const GeoCoordinate& coordinate) {
  return JSONValue::Object{{"latitude", coordinate.latitude}, {"longitude", coordinate.longitude}};
}

std::optional<GeoCoordinate> geoCoordinateFromJSON(const JSONValue& value) {
  const JSONValue* latitude = value.find("latitude");
  const JSONValue* longitude = value.find("longitude");
  if (latitude == nullptr || longitude == nullptr) return std::nullopt;
  if (latitude->asNumber() == nullptr || longitude->asNumber() == nullptr) return std::nullopt;
  return GeoCoordinate{*latitude->asNumber(), *longitude->asNumber()};
}

}  // namespace tindra
