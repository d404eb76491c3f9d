// WeatherCondition: the sky shown beside the temperature, decided from a MET Norway symbol code
// ("lightrainshowers_day") and stored by its raw string. Also tells night codes apart and names
// the symbol drawn for each condition.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

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

template <>
struct EnumTable<WeatherCondition> {
  static constexpr std::array cases{EnumCase{WeatherCondition::clear, "clear"},
                                    EnumCase{WeatherCondition::fair, "fair"},
                                    EnumCase{WeatherCondition::partlyCloudy, "partlyCloudy"},
                                    EnumCase{WeatherCondition::cloudy, "cloudy"},
                                    EnumCase{WeatherCondition::fog, "fog"},
                                    EnumCase{WeatherCondition::lightRain, "lightRain"},
                                    EnumCase{WeatherCondition::rain, "rain"},
                                    EnumCase{WeatherCondition::heavyRain, "heavyRain"},
                                    EnumCase{WeatherCondition::rainShowers, "rainShowers"},
                                    EnumCase{WeatherCondition::thunderstorm, "thunderstorm"},
                                    EnumCase{WeatherCondition::sleet, "sleet"},
                                    EnumCase{WeatherCondition::snow, "snow"},
                                    EnumCase{WeatherCondition::unknown, "unknown"}};
};

// The condition of a symbol code, compared case-insensitively; unknown codes give `unknown`.
WeatherCondition weatherConditionFromSymbolCode(std::string_view symbolCode);

// True for codes ending in "_night" or "_polartwilight" (any letter case).
bool isNightSymbolCode(std::string_view symbolCode);

// The symbol name drawn for the condition, by day or by night.
std::string_view symbolName(WeatherCondition condition, bool isNight);

}  // namespace tindra
