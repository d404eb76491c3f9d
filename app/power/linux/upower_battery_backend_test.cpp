// Runs in: private-session --offscreen --system-bus
#include "power/linux/upower_battery_backend.h"

#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "power/battery_provider.h"
#include "testing/dbus_mock_service.h"
#include "testing/provider_test_context.h"
#include "testing/restart_drill.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

const QString upowerPath = QStringLiteral("/org/freedesktop/UPower");
const QDBusObjectPath displayDevice(
    QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice"));

// One UPower for the whole program, on the private system bus of scripts/private-session.
class UPowerBatteryBackendTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    upower_ = std::make_unique<DBusMockService>(QDBusConnection::systemBus(),
                                                QStringLiteral("org.freedesktop.UPower"),
                                                QStringList{"--template", "upower"});
    if (!upower_->start(&startError_)) upower_.reset();
  }
  static void TearDownTestSuite() { upower_.reset(); }

  void SetUp() override {
    if (!upower_) SKIP_OR_FAIL_ON_CI("no mocked UPower: " + startError_.toStdString());
  }

  // A discharging battery at `percent` with an hour to go, as UPower's display device.
  static void setUpBattery(double percent) {
    ASSERT_EQ(upower_->call(upowerPath, "SetupDisplayDevice",
                            {2u, 2u, percent, 40.0, 50.0, 10.0, qlonglong(3600), qlonglong(0), true,
                             QString(), 1u}),
              QString());
  }
  static void setProperties(const QVariantMap& properties) {
    ASSERT_EQ(upower_->call(upowerPath, "SetDeviceProperties",
                            {QVariant::fromValue(displayDevice), properties}),
              QString());
  }
  static bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
  }
  static void setProfile(const QString& profile) {
    QDBusMessage set =
        QDBusMessage::createMethodCall("net.hadess.PowerProfiles", "/net/hadess/PowerProfiles",
                                       "org.freedesktop.DBus.Properties", "Set");
    set << "net.hadess.PowerProfiles"
        << "ActiveProfile" << QVariant::fromValue(QDBusVariant(profile));
    ASSERT_EQ(QDBusConnection::systemBus().call(set).type(), QDBusMessage::ReplyMessage);
  }
  static qsizetype entriesSaying(const DiagnosticsLog& diagnostics, const QString& text) {
    return std::ranges::count_if(diagnostics.entries(), [&](const DiagnosticsLog::Entry& entry) {
      return entry.text.english().contains(text);
    });
  }

  static inline std::unique_ptr<DBusMockService> upower_;
  static inline QString startError_;
};

TEST_F(UPowerBatteryBackendTest, FollowsTheDisplayDeviceAndKeepsValuesOverNonsense) {
  UPowerBatteryBackend backend(QDBusConnection::systemBus());
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.check().text.english().contains("no battery"); }));
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::ok);
  EXPECT_FALSE(backend.reading());

  setUpBattery(63.4);
  ASSERT_TRUE(waitFor([&] { return backend.reading() && backend.reading()->percent == 63; }));
  EXPECT_EQ(backend.reading()->minutesToEmpty, 60);

  setProperties({{"State", 1u}, {"TimeToFull", qlonglong(1800)}});
  ASSERT_TRUE(waitFor([&] { return backend.reading()->isCharging; }));
  EXPECT_EQ(backend.reading()->minutesToFull, 30);

  // Values of the wrong kind keep what was there; the next good change still arrives.
  setProperties({{"Percentage", "lots"}, {"TimeToFull", -1.5}});
  setProperties({{"State", 2u}});
  ASSERT_TRUE(waitFor([&] { return !backend.reading()->isCharging; }));
  EXPECT_EQ(backend.reading()->percent, 63);
  EXPECT_EQ(backend.reading()->minutesToEmpty, 60);

  setProperties({{"IsPresent", false}});
  EXPECT_TRUE(waitFor([&] { return !backend.reading(); }));
}

// Low power mode is power-profiles-daemon's power-saver profile, followed as it changes; the
// provider on top turns UPower's changes into notices.
TEST_F(UPowerBatteryBackendTest, PowerSaverAndNoticesFollowTheServices) {
  DBusMockService profiles(QDBusConnection::systemBus(), "net.hadess.PowerProfiles",
                           {"--template", "power_profiles_daemon"});
  QString error;
  ASSERT_TRUE(profiles.start(&error)) << error.toStdString();
  setUpBattery(50);
  auto owned = std::make_unique<UPowerBatteryBackend>(QDBusConnection::systemBus());
  UPowerBatteryBackend& backend = *owned;
  ProviderTestContext context;
  BatteryProvider provider(context, std::move(owned));
  provider.start();
  ASSERT_TRUE(waitFor([&] { return backend.reading() && backend.reading()->percent == 50; }));
  EXPECT_FALSE(backend.reading()->isLowPowerMode);

  setProfile("power-saver");
  ASSERT_TRUE(waitFor([&] { return backend.reading()->isLowPowerMode; }));
  EXPECT_TRUE(provider.viewModel()->lowPowerMode());

  // Plugged in, then discharging through the threshold: how long a change takes to the notice.
  QElapsedTimer sinceChange;
  sinceChange.start();
  setProperties({{"State", 1u}});
  ASSERT_TRUE(
      waitFor([&] { return context.activities().current() == ActivityKind::batteryAlert; }));
  std::printf("UPower change to notice: %.2f ms\n", sinceChange.nsecsElapsed() / 1e6);
  EXPECT_EQ(provider.viewModel()->notice(), "pluggedIn");
  context.activities().reset();
  setProperties({{"State", 2u}, {"Percentage", 21.0}});
  ASSERT_TRUE(waitFor([&] { return provider.viewModel()->notice() == "unplugged"; }));
  setProperties({{"Percentage", 19.6}});
  ASSERT_TRUE(waitFor([&] { return provider.viewModel()->notice() == "low"; }));
  EXPECT_EQ(provider.viewModel()->noticePercent(), 20);
  ASSERT_TRUE(profiles.stop());
  ASSERT_TRUE(waitFor([&] { return !backend.reading()->isLowPowerMode; }));
}

TEST_F(UPowerBatteryBackendTest, LosesTheBatteryWithUPowerAndFindsItWhenUPowerReturns) {
  setUpBattery(80);
  UPowerBatteryBackend backend(QDBusConnection::systemBus());
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.reading().has_value(); }));

  QSignalSpy checks(&backend, &BatteryBackend::checkChanged);
  ASSERT_TRUE(upower_->stop());
  ASSERT_TRUE(waitFor([&] { return !backend.reading(); }));
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::degraded);
  EXPECT_TRUE(backend.check().text.english().contains("went away"));

  QString error;
  ASSERT_TRUE(upower_->start(&error)) << error.toStdString();
  ASSERT_TRUE(waitFor([&] { return backend.check().outcome == DiagnosticsLog::Outcome::ok; }));
  setUpBattery(55);
  ASSERT_TRUE(waitFor([&] { return backend.reading() && backend.reading()->percent == 55; }));
  EXPECT_GE(checks.count(), 2);
}

// Crashes at random moments, each while the battery is shown or still being read: every return
// shows the new UPower's battery, never the dead one's, and the diagnostics tell each time.
TEST_F(UPowerBatteryBackendTest, ABatteryComesBackAfterEachOfManyCrashesOfUPower) {
  setUpBattery(64);
  auto owned = std::make_unique<UPowerBatteryBackend>(QDBusConnection::systemBus());
  UPowerBatteryBackend& backend = *owned;
  ProviderTestContext context;
  BatteryProvider provider(context, std::move(owned));
  const BatteryViewModel& view = *provider.viewModel();
  provider.start();
  ASSERT_TRUE(waitFor([&] { return view.percent() == 64 && !view.charging(); }));

  // Each UPower brings another level, so that only a reading from it passes.
  int percent = 64;
  QElapsedTimer drill;
  drill.start();
  const RestartDrillReport report = runRestartDrill(
      "UPower", {.kill = [] { return upower_->kill(); },
                 .restart =
                     [&] {
                       QString error;
                       if (!upower_->start(&error)) return false;
                       setUpBattery(--percent);
                       return !::testing::Test::HasFatalFailure();
                     },
                 .rightState =
                     [&] {
                       return backend.check().outcome == DiagnosticsLog::Outcome::ok &&
                              backend.reading() && backend.reading()->percent == percent &&
                              view.percent() == percent && !view.charging();
                     },
                 .showsGone = [&] { return !view.available(); }});
  std::printf("UPower drill: %lld ms\n", static_cast<long long>(drill.elapsed()));
  EXPECT_EQ(report.failure, QString());
  EXPECT_EQ(report.restarts, 20);
  EXPECT_EQ(entriesSaying(context.diagnostics(), "UPower went away"), report.restarts);
  // Back with the battery, or back before the battery was set up on it.
  EXPECT_GE(entriesSaying(context.diagnostics(), "reading the battery from UPower") +
                entriesSaying(context.diagnostics(), "UPower answers and reports no battery"),
            report.restarts + 1);
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::ok);
}

TEST_F(UPowerBatteryBackendTest, LowPowerModeComesBackAfterEachOfManyCrashesOfTheProfiles) {
  DBusMockService profiles(QDBusConnection::systemBus(), "net.hadess.PowerProfiles",
                           {"--template", "power_profiles_daemon"});
  QString error;
  ASSERT_TRUE(profiles.start(&error)) << error.toStdString();
  setProfile("power-saver");
  setUpBattery(64);
  auto owned = std::make_unique<UPowerBatteryBackend>(QDBusConnection::systemBus());
  ProviderTestContext context;
  BatteryProvider provider(context, std::move(owned));
  const BatteryViewModel& view = *provider.viewModel();
  provider.start();
  ASSERT_TRUE(waitFor([&] { return view.lowPowerMode() && view.percent() == 64; }));
  QStringList told;  // what Diagnostics says of the battery from here on
  QObject::connect(&context.diagnostics(), &DiagnosticsLog::recorded, &context.diagnostics(),
                   [&](const DiagnosticsLog::Entry& entry) { told << entry.text.english(); });

  QElapsedTimer drill;
  drill.start();
  const RestartDrillReport report =
      runRestartDrill("power profiles", {.kill = [&] { return profiles.kill(); },
                                         .restart =
                                             [&] {
                                               QString error;
                                               if (!profiles.start(&error)) return false;
                                               setProfile("power-saver");
                                               return !::testing::Test::HasFatalFailure();
                                             },
                                         .rightState = [&] { return view.lowPowerMode(); },
                                         .showsGone = [&] { return !view.lowPowerMode(); }});
  std::printf("power profiles drill: %lld ms\n", static_cast<long long>(drill.elapsed()));
  EXPECT_EQ(report.failure, QString());
  EXPECT_EQ(report.restarts, 20);
  // The battery stayed with UPower all along, and Diagnostics told of each crash and return.
  EXPECT_EQ(view.percent(), 64);
  EXPECT_EQ(told.filter("power-profiles-daemon went away").size(), 20)
      << told.join('\n').toStdString();
  ASSERT_FALSE(told.isEmpty());
  EXPECT_EQ(told.last(), "reading the battery from UPower");
}

}  // namespace
}  // namespace tindra
