#include "weather/weather_condition.h"

#include <string>

#include "base/ascii_text.h"

namespace tindra {

WeatherCondition weatherConditionFromSymbolCode(std::string_view symbolCode) {
  const std::string lower = asciiLowercased(symbolCode);
  const std::string_view base = std::string_view(lower).substr(0, lower.find('_'));
  if (base == "clearsky") return WeatherCondition::clear;
  if (base == "fair") return WeatherCondition::fair;
  if (base == "partlycloudy") return WeatherCondition::partlyCloudy;
  if (base == "cloudy") return WeatherCondition::cloudy;
  if (base == "fog") return WeatherCondition::fog;
  // Thunder outranks snow, and snow outranks sleet: "heavysleetshowersandthunder" is a storm.
  if (base.find("thunder") != std::string_view::npos) return WeatherCondition::thunderstorm;
  if (base.find("snow") != std::string_view::npos) return WeatherCondition::snow;
  if (base.find("sleet") != std::string_view::npos) return WeatherCondition::sleet;
  if (base.ends_with("rainshowers")) {
    return base.starts_with("heavy") ? WeatherCondition::heavyRain : WeatherCondition::rainShowers;
  }
  if (base == "lightrain") return WeatherCondition::lightRain;
  if (base == "rain") return WeatherCondition::rain;
  if (base == "heavyrain") return WeatherCondition::heavyRain;
  return WeatherCondition::unknown;
}

bool isNightSymbolCode(std::string_view symbolCode) {
  const std::string lower = asciiLowercased(symbolCode);
  return lower.ends_with("_night") || lower.ends_with("_polartwilight");
}

std::string_view symbolName(WeatherCondition condition, bool isNight) {
  switch (condition) {
    case WeatherCondition::clear:
      return isNight ? "moon.stars.fill" : "sun.max.fill";
    case WeatherCondition::fair:
    case WeatherCondition::partlyCloudy:
      return isNight ? "cloud.moon.fill" : "cloud.sun.fill";
    case WeatherCondition::cloudy:
      return "cloud.fill";
    case WeatherCondition::fog:
      return "cloud.fog.fill";
    case WeatherCondition::lightRain:
      return "cloud.drizzle.fill";
    case WeatherCondition::rain:
      return "cloud.rain.fill";
    case WeatherCondition::heavyRain:
      return "cloud.heavyrain.fill";
    case WeatherCondition::rainShowers:
      return isNight ? "cloud.moon.rain.fill" : "cloud.sun.rain.fill";
    case WeatherCondition::thunderstorm:
      return "cloud.bolt.rain.fill";
    case WeatherCondition::sleet:
      return "cloud.sleet.fill";
    case WeatherCondition::snow:
      return "cloud.snow.fill";
    case WeatherCondition::unknown:
      return "thermometer.medium";
  }
  return "thermometer.medium";
}

}  // namespace tindra
