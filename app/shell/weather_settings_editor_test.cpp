#include "shell/weather_settings_editor.h"

#include <gtest/gtest.h>

#include "settings/settings_keys.h"
#include "testing/provider_test_context.h"
#include "testing/view_shot.h"
#include "weather/fake_weather.h"

namespace tindra {
namespace {

TEST(WeatherSettingsEditorTest, APlacePickedOrGivenWinsAndIsSaidInUse) {
  ProviderTestContext context;
  (void)context.settings().write(settings::weatherEnabled, true);
  const double now = 1653040800;
  WeatherProvider weather(context, std::make_unique<FakeLocationSource>(),
                          std::make_shared<FakeForecastTransport>([now] { return now; }),
                          {context.filePath("snapshot.json").toStdString(),
                           context.filePath("weather.json").toStdString(),
                           {},
                           "Etc/UTC"},
                          [now] { return now; });
  weather.start();
  ZoneTable zones = ZoneTable::parse(
      "NO\t+5955+01045\tEurope/Oslo\nAR\t-3436-05827\tAmerica/Argentina/Buenos_Aires\n");
  WeatherSettingsEditor editor(weather, zones);
  EXPECT_EQ(editor.positionText(), "GeoClue");

  EXPECT_FALSE(editor.pickCity("Atlantis"));
  EXPECT_TRUE(editor.pickCity("buenos aires"));
  EXPECT_EQ(editor.positionText(), "Buenos Aires, set in Settings");
  EXPECT_LT(weather.preferences().location->latitude, -34);

  editor.contact().setText("me@example.org");
  emit editor.contact().editingFinished();
  editor.unit().setCurrentIndex(2);
  emit editor.unit().activated(2);
  // Saved for the next start.
  const auto kept = WeatherPreferences::decoded(
      DurableFile(context.filePath("weather.json").toStdString()).read().value_or(""));
  EXPECT_EQ(kept.contact, "me@example.org");
  EXPECT_EQ(kept.unit, TemperatureUnit::fahrenheit);
  EXPECT_EQ(kept.locationName, "Buenos Aires");

  editor.clearPlace();
  EXPECT_EQ(editor.positionText(), "GeoClue");
  editor.resize(560, 200);
  keepScreenshot(editor.grab().toImage(), QStringLiteral("settings-weather"));
}

}  // namespace
}  // namespace tindra
