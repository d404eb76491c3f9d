// WeatherSnapshot: the current weather taken from one forecast document, with the cache dates of
// the answer that carried it. Kept between launches as JSON whose member names are the field
// names; absent optionals are left out, dates are seconds since 1970.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/json_value.h"
#include "weather/geo_coordinate.h"
#include "weather/weather_condition.h"

namespace tindra {

struct WeatherSnapshot {
  GeoCoordinate coordinate;  // the position the forecast is for
  double temperature = 0;    // degrees Celsius
  WeatherCondition condition = WeatherCondition::unknown;
  bool isNight = false;
  std::optional<double> precipitationChance;  // percent
  std::optional<double> precipitationAmount;  // millimetres
  std::optional<int> precipitationHours;      // 1, 6 or 12: the period the two figures cover
  double validAt = 0;                         // time of the forecast step used
  double fetchedAt = 0;                       // when the document was received
  std::optional<double> expiresAt;            // the answer's "Expires"
  std::optional<std::string> lastModified;    // the answer's "Last-Modified", as received

  friend bool operator==(const WeatherSnapshot&, const WeatherSnapshot&) = default;
};

JSONValue toJSON(const WeatherSnapshot& snapshot);
// None when a required member is missing or any member has the wrong type; null reads as absent.
std::optional<WeatherSnapshot> weatherSnapshotFromJSON(const JSONValue& value);

// The same through JSON text, for the file the snapshot is kept in.
std::string encodeWeatherSnapshot(const WeatherSnapshot& snapshot);
std::optional<WeatherSnapshot> decodeWeatherSnapshot(std::string_view text);

}  // namespace tindra
