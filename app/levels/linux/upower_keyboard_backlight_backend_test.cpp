// Runs in: private-session --offscreen --system-bus
#include "levels/linux/upower_keyboard_backlight_backend.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "testing/dbus_mock_service.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

const QString lightPath = QStringLiteral("/org/freedesktop/UPower/KbdBacklight");

// UPower with a keyboard light of four levels (0 to 3) on the private system bus.
class UPowerKeyboardBacklightBackendTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    upower_ = std::make_unique<DBusMockService>(
        QDBusConnection::systemBus(), QStringLiteral("org.freedesktop.UPower"),
        QStringList{"--template", TINDRA_SOURCE_DIR "/app/testing/upower_keyboard_backlight.py"});
    if (!upower_->start(&startError_)) upower_.reset();
  }
  static void TearDownTestSuite() { upower_.reset(); }
  void SetUp() override {
    if (!upower_) SKIP_OR_FAIL_ON_CI("no mocked UPower: " + startError_.toStdString());
    hardware("SetHardwareBrightness", 1);
  }

  static void hardware(const char* method, const QVariant& value) {
    ASSERT_EQ(upower_->call(lightPath, method, {value}), QString());
  }
  static bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
  }

  static inline std::unique_ptr<DBusMockService> upower_;
  static inline QString startError_;
};

TEST_F(UPowerKeyboardBacklightBackendTest, FollowsTheLightAndReadsEachWriteBack) {
  UPowerKeyboardBacklightBackend backend(QDBusConnection::systemBus());
  QSignalSpy written(&backend, &BacklightBackend::writeFinished);
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.access() == BrightnessAccess::readWrite; }));
  EXPECT_DOUBLE_EQ(backend.reading()->level, 1.0 / 3);
  EXPECT_TRUE(backend.check().text.english().contains("4 levels"));

  hardware("SetHardwareBrightness", 3);  // the firmware's own key
  ASSERT_TRUE(waitFor([&] { return backend.reading()->level == 1.0; }));

  backend.setLevel(0.3);  // rounds to level 1 of 3
  ASSERT_TRUE(waitFor([&] { return written.count() == 1; }));
  EXPECT_DOUBLE_EQ(written.front().at(1).toDouble(), 1.0 / 3);

  // A keyboard that ignores writes: the read-back shows the light where it was.
  hardware("SetIgnoreWrites", true);
  backend.setLevel(1.0);
  ASSERT_TRUE(waitFor([&] { return written.count() == 2; }));
  EXPECT_DOUBLE_EQ(written.back().at(1).toDouble(), 1.0 / 3);
  hardware("SetIgnoreWrites", false);
}

TEST_F(UPowerKeyboardBacklightBackendTest, LosesTheLightWithUPowerAndFindsItAgain) {
  UPowerKeyboardBacklightBackend backend(QDBusConnection::systemBus());
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.access() == BrightnessAccess::readWrite; }));
  ASSERT_TRUE(upower_->stop());
  ASSERT_TRUE(waitFor([&] { return backend.access() == BrightnessAccess::unavailable; }));
  EXPECT_FALSE(backend.reading());
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::degraded);
  ASSERT_TRUE(upower_->start(&startError_));
  ASSERT_TRUE(waitFor([&] { return backend.access() == BrightnessAccess::readWrite; }));
  EXPECT_TRUE(backend.reading());
}

// A level beyond the light's own maximum is no reading: it is dropped and said once, and the
// light is only used again once read anew.
TEST_F(UPowerKeyboardBacklightBackendTest, ALevelOutOfRangeIsUnreadableUntilReadAgain) {
  UPowerKeyboardBacklightBackend backend(QDBusConnection::systemBus());
  QSignalSpy unreadable(&backend, &BacklightBackend::levelUnreadable);
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.access() == BrightnessAccess::readWrite; }));
  hardware("SetHardwareBrightness", 9);
  ASSERT_TRUE(waitFor([&] { return unreadable.count() == 1; }));
  EXPECT_FALSE(backend.reading());
  EXPECT_EQ(backend.access(), BrightnessAccess::unavailable);
  EXPECT_TRUE(backend.check().text.english().contains("cannot be read (9 of 3)"));

  hardware("SetHardwareBrightness", 2);
  backend.readAgain();
  ASSERT_TRUE(waitFor([&] { return backend.access() == BrightnessAccess::readWrite; }));
  EXPECT_DOUBLE_EQ(backend.reading()->level, 2.0 / 3);
  EXPECT_EQ(unreadable.count(), 1);
}

}  // namespace
}  // namespace tindra
