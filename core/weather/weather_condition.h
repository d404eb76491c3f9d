// WeatherCondition: the sky shown beside the temperature, decided from a MET Norway symbol code
// ("lightrainshowers_day") and stored by its raw string. Also tells night codes apart and names
// the symbol drawn for each condition.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class WeatherCondition {
  clear,
  fair,
  partlyCloudy,
  cloudy,
  fog,
  lightRain,
  rain,
  heavyRain,
  rainShowers,
  thunderstorm,
  sleet,
  snow,
  unknown,
};

inline constexpr std::array<WeatherCondition, 13> allWeatherConditions{
    WeatherCondition::clear,        WeatherCondition::fair,      WeatherCondition::partlyCloudy,
    WeatherCondition::cloudy,       WeatherCondition::fog,       WeatherCondition::lightRain,
    WeatherCondition::rain,         WeatherCondition::heavyRain, WeatherCondition::rainShowers,
    WeatherCondition::thunderstorm, WeatherCondition::sleet,     WeatherCondition::snow,
    WeatherCondition::unknown};

std::string_view rawValue(WeatherCondition condition);
std::optional<WeatherCondition> weatherConditionFromRaw(std::string_view raw);

// The condition of a symbol code, compared case-insensitively; unknown codes give `unknown`.
WeatherCondition weatherConditionFromSymbolCode(std::string_view symbolCode);

// True for codes ending in "_night" or "_polartwilight" (any letter case).
bool isNightSymbolCode(std::string_view symbolCode);

// The symbol name drawn for the condition, by day or by night.
std::string_view symbolName(WeatherCondition condition, bool isNight);

}  // namespace tindra
