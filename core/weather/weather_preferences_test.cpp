#include "weather/weather_preferences.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(WeatherPreferencesTest, RoundTripsAndFallsBackMemberByMember) {
  WeatherPreferences preferences;
  preferences.location = GeoCoordinate{60.39, 5.32};
  preferences.locationName = "Bergen";
  preferences.contact = "me@example.org";
  preferences.unit = TemperatureUnit::fahrenheit;
  EXPECT_EQ(WeatherPreferences::decoded(preferences.encoded()), preferences);

  const WeatherPreferences broken = WeatherPreferences::decoded(
      R"({"location": {"latitude": 95, "longitude": 5}, "contact": 7, "unit": "kelvin",
          "locationName": "Nowhere"})");
  EXPECT_FALSE(broken.location) << "a latitude past the pole";
  EXPECT_EQ(broken.contact, "");
  EXPECT_EQ(broken.unit, TemperatureUnit::automatic);
  EXPECT_EQ(broken.locationName, "Nowhere");
  EXPECT_EQ(WeatherPreferences::decoded("not json"), WeatherPreferences{});
}

}  // namespace
}  // namespace tindra
