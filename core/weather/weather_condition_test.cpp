#include "weather/weather_condition.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(WeatherCondition, SymbolCodesInOrderOfPrecedence) {
  const std::pair<const char*, WeatherCondition> cases[] = {
      {"clearsky_day", WeatherCondition::clear},
      {"clearsky_polartwilight", WeatherCondition::clear},
      {"ClearSky_Night", WeatherCondition::clear},
      {"partlycloudy_polartwilight", WeatherCondition::partlyCloudy},
      {"cloudy", WeatherCondition::cloudy},
      {"fog", WeatherCondition::fog},
      // thunder before snow before sleet, whatever else the code says
      {"heavysleetshowersandthunder_day", WeatherCondition::thunderstorm},
      {"lightsnowandthunder", WeatherCondition::thunderstorm},
      {"lightsnow", WeatherCondition::snow},
      {"sleetandsnow", WeatherCondition::snow},
      {"heavysleetshowers_night", WeatherCondition::sleet},
      {"lightrainshowers_day", WeatherCondition::rainShowers},
      {"heavyrainshowers_night", WeatherCondition::heavyRain},
      {"lightrain", WeatherCondition::lightRain},
      {"rain", WeatherCondition::rain},
      {"heavyrain", WeatherCondition::heavyRain},
      // whole-word matches only for the plain names, and only before the first "_"
      {"cloudyish", WeatherCondition::unknown},
      {"rain_showers", WeatherCondition::rain},
      {"_rainshowers", WeatherCondition::unknown},
      {"", WeatherCondition::unknown},
  };
  for (const auto& [code, condition] : cases) {
    EXPECT_EQ(weatherConditionFromSymbolCode(code), condition) << code;
  }
}

TEST(WeatherCondition, NightCodesAndSymbolNames) {
  EXPECT_TRUE(isNightSymbolCode("partlycloudy_polartwilight"));
  EXPECT_TRUE(isNightSymbolCode("FAIR_NIGHT"));
  EXPECT_FALSE(isNightSymbolCode("lightrainshowers_day"));
  EXPECT_FALSE(isNightSymbolCode("night"));
  EXPECT_FALSE(isNightSymbolCode("clearsky_night_"));

  EXPECT_EQ(symbolName(WeatherCondition::clear, true), "moon.stars.fill");
  EXPECT_EQ(symbolName(WeatherCondition::partlyCloudy, false), "cloud.sun.fill");
  EXPECT_EQ(symbolName(WeatherCondition::rainShowers, true), "cloud.moon.rain.fill");

  EXPECT_EQ(enumFromRaw<WeatherCondition>("partlyCloudy"), WeatherCondition::partlyCloudy);
  EXPECT_EQ(enumFromRaw<WeatherCondition>("Clear"), std::nullopt);
}

}  // namespace
}  // namespace tindra
