#include "weather/weather_provider.h"

#include <gtest/gtest.h>

#include <QFile>

#include "settings/settings_keys.h"
#include "testing/manual_one_shot_scheduler.h"
#include "testing/picture_checks.h"
#include "testing/provider_test_context.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

constexpr double lateEvening = 1653000000;  // 2022-05-19 22:40 UTC, inside the document's days
constexpr double morning = 1653040800;      // 2022-05-20 10:00 UTC, clear sky
constexpr double night = 1653010200;        // 2022-05-20 01:30 UTC, partly cloudy

std::string forecastDocument() {
  QFile file(
      QStringLiteral(TINDRA_SOURCE_DIR "/core/weather/testdata/met-complete-2022-05-18.json"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll().toStdString();
}

// Answers every request with `answer`, at once, and keeps the requests.
struct CannedForecast final : HTTPTransport {
  void send(const HTTPRequest& request, Completion completion) override {
    requests.push_back(request);
    auto stamped = answer;
    if (stamped && stamp) stamped->receivedAt = stamp();
    completion(stamped);
  }
  std::expected<HTTPResponse, HTTPTransportError> answer;
  std::function<double()> stamp;  // when set, the clock read as the answer arrives
  std::vector<HTTPRequest> requests;
};

// A location service that knows nothing until told.
struct SetLocation final : LocationSource {
  void start() override {}
  void set(GeoCoordinate position) { publish(position); }
};

class WeatherProviderTest : public ::testing::Test {
 protected:
  WeatherProviderTest() {
    QFile zones(context_.filePath("zone.tab"));
    EXPECT_TRUE(zones.open(QIODevice::WriteOnly));
    zones.write("NO\t+5955+01045\tEurope/Oslo\nIN\t+2232+08822\tAsia/Kolkata\n");
    zones.close();
    ok(lateEvening + 3600);
  }

  void ok(double expires) {
    HTTPResponse response;
    response.status = 200;
    response.headers = {{"Expires", httpDate(expires)},
                        {"Last-Modified", "Thu, 19 May 2022 22:00:00 GMT"}};
    response.body = forecastDocument();
    response.receivedAt = now_;
    transport_->answer = response;
  }
  static std::string httpDate(double date) {
    const std::time_t time = static_cast<std::time_t>(date);
    std::tm fields{};
    gmtime_r(&time, &fields);
    char text[40];
    std::strftime(text, sizeof text, "%a, %d %b %Y %H:%M:%S GMT", &fields);
    return text;
  }

  std::unique_ptr<WeatherProvider> makeProvider(std::string timeZone = "Europe/Oslo") {
    auto location = std::make_unique<SetLocation>();
    location_ = location.get();
    auto wake = std::make_unique<ManualOneShotScheduler>();
    wake_ = wake.get();
    WeatherProvider::Places places{context_.filePath("data/weather-snapshot.json").toStdString(),
                                   context_.filePath("config/weather.json").toStdString(),
                                   {context_.filePath("zone.tab").toStdString()},
                                   std::move(timeZone)};
    auto provider = std::make_unique<WeatherProvider>(
        context_, std::move(location), transport_, std::move(places), [this] { return now_; },
        std::move(wake));
    provider->start();
    return provider;
  }
  void advanceTo(WeatherProvider& provider, double now) {
    now_ = now;
    provider.update();
  }

  ProviderTestContext context_;
  std::shared_ptr<CannedForecast> transport_ = std::make_shared<CannedForecast>();
  SetLocation* location_ = nullptr;
  ManualOneShotScheduler* wake_ = nullptr;  // of the provider made last
  double now_ = lateEvening;
};

TEST_F(WeatherProviderTest, ShowsTheWeatherOnFirstRunAndARestartWithinExpiresAsksNothing) {
  (void)context_.settings().write(settings::weatherEnabled, true);
  auto weather = makeProvider();
  // The first position is the time zone's city, rounded before it leaves the machine.
  ASSERT_EQ(transport_->requests.size(), 1U);
  EXPECT_TRUE(transport_->requests[0].url.ends_with("?lat=59.92&lon=10.75"));
  const WeatherViewModel& view = *weather->viewModel();
  ASSERT_TRUE(view.available());
  EXPECT_TRUE(view.temperature().endsWith("°C"));
  EXPECT_FALSE(view.condition().isEmpty());
  EXPECT_TRUE(view.place().contains("Europe/Oslo"));
  EXPECT_TRUE(view.sun().startsWith("Sunrise")) << "late in the evening, the sun rises next";
  const QString highLow = view.highLow();
  EXPECT_TRUE(highLow.startsWith("High ")) << highLow.toStdString();
  // The next look is the snapshot's Expires, an hour on.
  EXPECT_EQ(weather->nextLook(), lateEvening + 3600);
  EXPECT_EQ(wake_->aimed(), 3600);

  now_ += 600;
  weather = makeProvider();
  EXPECT_EQ(transport_->requests.size(), 1U) << "the kept snapshot is still good";
  EXPECT_TRUE(weather->viewModel()->available());
  EXPECT_EQ(weather->viewModel()->highLow(), highLow) << "the course is kept too";
  advanceTo(*weather, lateEvening + 3600);
  EXPECT_EQ(transport_->requests.size(), 2U);
  EXPECT_EQ(transport_->requests[1].headers.back().second, "Thu, 19 May 2022 22:00:00 GMT")
      << "asked conditionally";
}

TEST_F(WeatherProviderTest, FailuresKeepTheSnapshotAndNothingIsAskedWhileOffline) {
  (void)context_.settings().write(settings::weatherEnabled, true);
  auto weather = makeProvider();
  HTTPResponse busy;
  busy.status = 503;
  transport_->answer = busy;
  now_ = lateEvening + 3600;
  wake_->fire();
  ASSERT_EQ(transport_->requests.size(), 2U) << "asked when the wake-up came";
  EXPECT_TRUE(weather->viewModel()->available()) << "the last snapshot stays while fresh";
  EXPECT_EQ(weather->nextLook(), lateEvening + 3600 + 600) << "ten minutes, whatever failed";
  EXPECT_EQ(wake_->aimed(), 600);
  EXPECT_NE(context_.diagnostics().entries().back().outcome, DiagnosticsLog::Outcome::ok);

  weather->setOnline(false);
  advanceTo(*weather, lateEvening + 3600 + 700);
  EXPECT_EQ(transport_->requests.size(), 2U);
  ok(now_ + 3600);
  weather->setOnline(true);
  EXPECT_EQ(transport_->requests.size(), 3U) << "asked as soon as the network is back";

  // Three hours without a good answer: the weather is no longer shown.
  transport_->answer = std::unexpected(HTTPTransportError::unreachable);
  advanceTo(*weather, lateEvening + 3600 + 700 + 10801);
  EXPECT_FALSE(weather->viewModel()->available());
  EXPECT_EQ(weather->viewModel()->unavailable(), "The weather is unavailable right now.");
}

TEST_F(WeatherProviderTest, ThePositionComesFromTheUserThenGeoClueThenTheTimeZone) {
  (void)context_.settings().write(settings::weatherEnabled, true);
  EXPECT_EQ(makeProvider("Asia/Calcutta")->positionSource(), "the time zone Asia/Calcutta")
      << "an old name of a listed zone";
  transport_->requests.clear();
  QFile::remove(context_.filePath("data/weather-snapshot.json"));
  auto nowhere = makeProvider("Etc/Nowhere");
  EXPECT_TRUE(transport_->requests.empty());
  EXPECT_EQ(nowhere->viewModel()->unavailable(), "Waiting for location access");

  location_->set(GeoCoordinate{60.3913, 5.3221});
  ASSERT_EQ(transport_->requests.size(), 1U);
  EXPECT_TRUE(transport_->requests[0].url.ends_with("?lat=60.39&lon=5.32"));
  EXPECT_EQ(nowhere->positionSource(), "GeoClue");

  WeatherPreferences mine;
  mine.location = GeoCoordinate{69.65, 18.96};
  mine.locationName = "Tromsø";
  mine.contact = "me@example.org";
  mine.unit = TemperatureUnit::fahrenheit;
  EXPECT_EQ(nowhere->setPreferences(mine), std::nullopt);
  EXPECT_EQ(nowhere->positionSource(), "Tromsø, set in Settings");
  EXPECT_TRUE(nowhere->viewModel()->temperature().endsWith("°F"));
  // The user has moved far, but a request waits for the ten minutes since the last.
  EXPECT_EQ(transport_->requests.size(), 1U);
  advanceTo(*nowhere, lateEvening + 600);
  ASSERT_EQ(transport_->requests.size(), 2U);
  EXPECT_TRUE(transport_->requests[1].url.ends_with("?lat=69.65&lon=18.96"));
  EXPECT_EQ(std::string(*headerValue(transport_->requests[1].headers, "User-Agent")),
            "Tindra/" TINDRA_VERSION " (+" TINDRA_WEB_ADDRESS "; me@example.org)");
}

// The answer came back inside the request (as the invented forecast does) and the update that
// asked drew again with the clock read before it: the snapshot was from its future, so never
// fresh, and the weather never showed.
TEST_F(WeatherProviderTest, AnAnswerThatComesAtOnceIsShownWhenTheClockMovesOn) {
  (void)context_.settings().write(settings::weatherEnabled, true);
  auto location = std::make_unique<SetLocation>();
  location->set(GeoCoordinate{59.91, 10.75});
  double ticking = lateEvening;
  WeatherProvider weather(context_, std::move(location), transport_,
                          {context_.filePath("s.json").toStdString(),
                           context_.filePath("w.json").toStdString(),
                           {},
                           ""},
                          [&ticking] { return ticking += 0.001; });
  transport_->stamp = [&ticking] { return ticking += 0.001; };
  weather.start();
  EXPECT_TRUE(weather.viewModel()->available());
}

TEST_F(WeatherProviderTest, ViewsDrawTheWeatherByDayAndByNight) {
  (void)context_.settings().write(settings::weatherEnabled, true);
  struct Shots {
    QString symbol;
    QImage panel, idle;
  };
  const auto shoot = [&](double now, const QString& name) {
    now_ = now;
    ok(now + 3600);
    auto weather = makeProvider();
    weather->update();
    EXPECT_TRUE(weather->viewModel()->available());
    Shots shots{weather->viewModel()->symbol(),
                viewShot(QUrl("qrc:/Tindra/weather/WeatherPanel.qml"), weather->viewModel(),
                         {180, 156}, "weather-panel-" + name),
                viewShot(QUrl("qrc:/Tindra/weather/WeatherIdleItem.qml"), weather->viewModel(),
                         {90, 24}, "weather-idle-" + name)};
    QFile::remove(context_.filePath("data/weather-snapshot.json"));
    return shots;
  };
  const PixelTest sunny = hueOf("#ffd60a");
  // By day the sun in yellow, with the temperature beside it, in large type in the section.
  const Shots byDay = shoot(morning, "day");
  EXPECT_FALSE(byDay.symbol.contains("moon"));
  EXPECT_GT(countPixels(byDay.panel, sunny, {0, 16, 40, 36}), 150);
  EXPECT_GE(drawnArea(byDay.panel, {40, 16, 140, 36}).height(), 18);
  EXPECT_GT(countPixels(byDay.idle, sunny, {0, 0, 18, 24}), 20);
  EXPECT_GT(drawnArea(byDay.idle, {18, 0, 72, 24}).width(), 25);
  // By night a moon behind the cloud: the symbol is there, and nothing is yellow.
  const Shots byNight = shoot(night, "night");
  EXPECT_EQ(byNight.symbol, "cloud.moon.fill");
  EXPECT_GT(countPixels(byNight.panel, isDrawn, {0, 16, 40, 36}), 100);
  EXPECT_GT(countPixels(byNight.idle, isDrawn, {0, 0, 18, 24}), 20);
  EXPECT_EQ(countPixels(byNight.panel, sunny) + countPixels(byNight.idle, sunny), 0);
}

}  // namespace
}  // namespace tindra
