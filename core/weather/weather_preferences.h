// WeatherPreferences: what the user has told the weather: a place of their own (which then wins
// over every location service), the contact the forecast service may reach them at, and the
// temperature unit. Kept as JSON in weather.json beside the settings; unreadable members fall
// back one by one, so one bad value never loses the others.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/enum_table.h"
#include "base/json_value.h"
#include "weather/geo_coordinate.h"

namespace tindra {

enum class TemperatureUnit { automatic, celsius, fahrenheit };

template <>
struct EnumTable<TemperatureUnit> {
  static constexpr std::array cases{EnumCase{TemperatureUnit::automatic, "automatic"},
                                    EnumCase{TemperatureUnit::celsius, "celsius"},
                                    EnumCase{TemperatureUnit::fahrenheit, "fahrenheit"}};
};

struct WeatherPreferences {
  std::optional<GeoCoordinate> location;  // set by the user
  std::string locationName;               // what the user calls it, for the settings
  std::string contact;                    // an address for the service's User-Agent
  TemperatureUnit unit = TemperatureUnit::automatic;

  std::string encoded() const;
  static WeatherPreferences decoded(std::string_view text);
  friend bool operator==(const WeatherPreferences&, const WeatherPreferences&) = default;
};

}  // namespace tindra
