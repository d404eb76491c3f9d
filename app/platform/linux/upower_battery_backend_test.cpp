#include "platform/linux/upower_battery_backend.h"

#include <gtest/gtest.h>

#include <QDBusObjectPath>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "testing/dbus_mock_service.h"

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
    if (!upower_) GTEST_SKIP() << "no mocked UPower: " << startError_.toStdString();
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

  static inline std::unique_ptr<DBusMockService> upower_;
  static inline QString startError_;
};

TEST_F(UPowerBatteryBackendTest, FollowsTheDisplayDeviceAndKeepsValuesOverNonsense) {
  UPowerBatteryBackend backend(QDBusConnection::systemBus());
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.check().text.contains("no battery"); }));
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

TEST_F(UPowerBatteryBackendTest, LosesTheBatteryWithUPowerAndFindsItWhenUPowerReturns) {
  setUpBattery(80);
  UPowerBatteryBackend backend(QDBusConnection::systemBus());
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.reading().has_value(); }));

  QSignalSpy checks(&backend, &BatteryBackend::checkChanged);
  ASSERT_TRUE(upower_->stop());
  ASSERT_TRUE(waitFor([&] { return !backend.reading(); }));
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::degraded);
  EXPECT_TRUE(backend.check().text.contains("went away"));

  QString error;
  ASSERT_TRUE(upower_->start(&error)) << error.toStdString();
  ASSERT_TRUE(waitFor([&] { return backend.check().outcome == DiagnosticsLog::Outcome::ok; }));
  setUpBattery(55);
  ASSERT_TRUE(waitFor([&] { return backend.reading() && backend.reading()->percent == 55; }));
  EXPECT_GE(checks.count(), 2);
}

}  // namespace
}  // namespace tindra
