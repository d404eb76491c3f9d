// WeatherProvider ("weather"): the current weather at the user's approximate position, from MET
// Norway, for the idle layout and the weather section. Runs only while weatherEnabled is on.
// The position is the one the user set, else GeoClue's, else the principal city of the system's
// time zone, so the weather shows on first run without asking; it is rounded to about 1 km
// before it leaves the machine. WeatherRefreshPolicy decides every request; the snapshot, with
// the answer's cache dates, is kept on disk (DurableFile), so a restart within its Expires makes
// no request. Nothing is asked while the network is down, and soon after it returns. One timer,
// aimed at the next refresh, the end of the snapshot's freshness or the next sunrise or sunset.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "base/next_change.h"
#include "base/provider.h"
#include "base/provider_views.h"
#include "settings/durable_file.h"
#include "settings/settings_store.h"
#include "weather/location_source.h"
#include "weather/met_weather_client.h"
#include "weather/sun_times.h"
#include "weather/temperature_course.h"
#include "weather/weather_preferences.h"
#include "weather/weather_view_model.h"
#include "weather/zone_table.h"

namespace tindra {

class WeatherProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "weather";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "weather").
  static std::unique_ptr<WeatherProvider> make(ProviderContext& context);
  static ProviderViews views();

  using Clock = std::function<double()>;  // seconds since 1970
  struct Places {
    std::filesystem::path snapshot;       // the kept snapshot and the last attempt
    std::filesystem::path preferences;    // weather.json
    std::vector<std::string> zoneTables;  // tzdata's zone.tab and zone1970.tab, in that order
    std::string timeZone;                 // the system's zone, "Europe/Oslo"
  };
  static Places defaultPlaces();

  // The next look is aimed on `scheduler` (none: a timer).
  WeatherProvider(ProviderContext context, std::unique_ptr<LocationSource> locationService,
                  std::shared_ptr<HTTPTransport> transport, Places places, Clock now,
                  std::unique_ptr<OneShotScheduler> scheduler = nullptr, QObject* parent = nullptr);
  ~WeatherProvider() override;

  void start() override;
  WeatherViewModel* viewModel() override { return &viewModel_; }

  const WeatherPreferences& preferences() const { return preferences_; }
  // Saves and applies new preferences; the reason when they cannot be saved.
  std::optional<QString> setPreferences(WeatherPreferences preferences);
  // Every city of the system's zone tables, to pick a place from.
  ZoneTable cities() const;
  // Where the position comes from now, in words, for the settings.
  QString positionSource() const;
  // The network went down or came back.
  void setOnline(bool online);
  // When the timer will next look, seconds since 1970; none while idle.
  std::optional<double> nextLook() const { return nextChange_.next(); }
  // Consults the policy, fetches when it says so, and redraws.
  void update();

 private:
  struct Position {
    GeoCoordinate coordinate;
    Sentence source;  // where it comes from
  };
  std::optional<Position> position() const;
  void enabledChanged();
  void recordCheck();
  Sentence inTimeZone() const;
  void loadKept();
  void saveKept() const;
  void fetch(const GeoCoordinate& coordinate);
  void received(const WeatherFetchResult& result);
  WeatherViewModel::State state(double now, const std::optional<SunTimes::Moment>& sun) const;
  void aim(double now, const std::optional<SunTimes::Moment>& sun);

  std::unique_ptr<LocationSource> locationService_;
  Places places_;
  Clock now_;
  METWeatherClient client_;
  DurableFile kept_;
  DurableFile preferencesFile_;
  WeatherPreferences preferences_;
  ZoneTable zones_;
  std::optional<WeatherSnapshot> snapshot_;
  TemperatureCourse course_;                   // of the document the snapshot came from
  std::optional<TemperatureCourse> arriving_;  // of the answer on its way to the client
  std::optional<double> lastAttempt_;
  std::optional<WeatherFetchFailure> lastFailure_;
  bool fetching_ = false;
  bool online_ = true;
  bool started_ = false;
  bool serviceStarted_ = false;
  WeatherViewModel viewModel_;
  SettingsObservation observation_;
  NextChange nextChange_;
};

}  // namespace tindra
