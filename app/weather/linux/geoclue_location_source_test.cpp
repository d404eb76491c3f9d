// Runs in: private-session --offscreen --system-bus
#include "weather/linux/geoclue_location_source.h"
#include "weather/weather_provider.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include "settings/settings_keys.h"
#include "testing/dbus_mock_service.h"
#include "testing/provider_test_context.h"
#include "testing/restart_drill.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

const QString manager = QStringLiteral("/org/freedesktop/GeoClue2/Manager");

// GeoClue, as python3-dbusmock serves it from app/testing/geoclue.py, on the private system bus.
class GeoClueLocationSourceTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    geoclue_ = std::make_unique<DBusMockService>(
        QDBusConnection::systemBus(), QStringLiteral("org.freedesktop.GeoClue2"),
        QStringList{"--template", TINDRA_SOURCE_DIR "/app/testing/geoclue.py"});
    if (!geoclue_->start(&startError_)) geoclue_.reset();
  }
  static void TearDownTestSuite() { geoclue_.reset(); }
  void SetUp() override {
    if (!geoclue_) SKIP_OR_FAIL_ON_CI("no mocked GeoClue: " + startError_.toStdString());
    ASSERT_EQ(geoclue_->call(manager, "SetRefuse", {false}), QString());
  }
  static bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
  }

  static inline std::unique_ptr<DBusMockService> geoclue_;
  static inline QString startError_;
};

TEST_F(GeoClueLocationSourceTest, FollowsThePositionGeoClueReports) {
  GeoClueLocationSource source(QDBusConnection::systemBus());
  source.start();
  ASSERT_TRUE(waitFor([&] { return source.check().outcome == DiagnosticsLog::Outcome::ok; }))
      << source.check().text.english().toStdString();
  EXPECT_FALSE(source.location());
  QSignalSpy moved(&source, &LocationSource::locationChanged);
  ASSERT_EQ(geoclue_->call(manager, "SetLocation", {59.9139, 10.7522, 5000.0}), QString());
  ASSERT_TRUE(waitFor([&] { return source.location().has_value(); }));
  EXPECT_EQ(*source.location(), (GeoCoordinate{59.9139, 10.7522}));
  ASSERT_EQ(geoclue_->call(manager, "SetLocation", {60.3913, 5.3221, 5000.0}), QString());
  ASSERT_TRUE(waitFor([&] { return source.location()->latitude > 60; }));
  EXPECT_EQ(moved.count(), 2);
}

TEST_F(GeoClueLocationSourceTest, ARefusalOrNoGeoClueIsSaidAndNothingBreaks) {
  ASSERT_EQ(geoclue_->call(manager, "SetRefuse", {true}), QString());
  GeoClueLocationSource refused(QDBusConnection::systemBus());
  refused.start();
  ASSERT_TRUE(waitFor([&] { return refused.check().text.english().contains("refused"); }));
  EXPECT_FALSE(refused.location());

  ASSERT_TRUE(geoclue_->stop());
  GeoClueLocationSource missing(QDBusConnection::systemBus());
  missing.start();
  ASSERT_TRUE(waitFor([&] { return missing.check().text.english().contains("not available"); }));
  // GeoClue arriving later is followed.
  QString error;
  ASSERT_TRUE(geoclue_->start(&error)) << error.toStdString();
  EXPECT_TRUE(waitFor([&] { return missing.check().outcome == DiagnosticsLog::Outcome::ok; }));
}

// Offline, the weather provider asks for nothing; a request would be a fault here.
struct NoRequests final : HTTPTransport {
  void send(const HTTPRequest& request, Completion completion) override {
    ADD_FAILURE() << "asked for " << request.url;
    completion(std::unexpected(HTTPTransportError::unreachable));
  }
};

// GeoClue crashing at random moments, before or after it reports a position: each GeoClue that
// returns is given a new client, and the position it reports reaches the weather.
TEST_F(GeoClueLocationSourceTest, ThePositionIsFollowedAgainAfterEachOfManyCrashes) {
  ProviderTestContext context;
  ASSERT_TRUE(context.settings().write(settings::weatherEnabled, true));
  auto owned = std::make_unique<GeoClueLocationSource>(QDBusConnection::systemBus());
  GeoClueLocationSource& source = *owned;
  WeatherProvider weather(context, std::move(owned), std::make_shared<NoRequests>(),
                          {context.filePath("snapshot.json").toStdString(),
                           context.filePath("weather.json").toStdString(),
                           {},
                           "Europe/Oslo"},
                          [] { return 1.7e9; });
  weather.setOnline(false);
  weather.start();
  ASSERT_TRUE(waitFor([&] { return source.check().outcome == DiagnosticsLog::Outcome::ok; }));
  // Each GeoClue reports a place further north, so that only its own report passes.
  double latitude = 59.9;
  ASSERT_EQ(geoclue_->call(manager, "SetLocation", {latitude, 10.75, 5000.0}), QString());
  ASSERT_TRUE(waitFor([&] { return source.location().has_value(); }));

  QElapsedTimer drill;
  drill.start();
  const RestartDrillReport report = runRestartDrill(
      "GeoClue",
      {.kill = [] { return geoclue_->kill(); },
       .restart =
           [&] {
             QString error;
             if (!geoclue_->start(&error)) return false;
             latitude += 0.1;
             return geoclue_->call(manager, "SetLocation", {latitude, 10.75, 5000.0}).isEmpty();
           },
       .rightState =
           [&] {
             return source.check().outcome == DiagnosticsLog::Outcome::ok && source.location() &&
                    source.location()->latitude == latitude;
           },
       .showsGone = [&] { return source.check().text.english().contains("went away"); }});
  std::printf("GeoClue drill: %lld ms\n", static_cast<long long>(drill.elapsed()));
  EXPECT_EQ(report.failure, QString());
  EXPECT_EQ(report.restarts, 20);
  const auto saying = [&](const QString& text) {
    return std::ranges::count_if(
        context.diagnostics().entries(), [&](const DiagnosticsLog::Entry& entry) {
          return entry.source == "weather" && entry.text.english().contains(text);
        });
  };
  EXPECT_GE(saying("GeoClue went away"), report.restarts);
  EXPECT_GE(saying("GeoClue gives the position"), report.restarts + 1);
}

}  // namespace
}  // namespace tindra
