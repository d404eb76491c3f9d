// Runs in: private-session --offscreen --system-bus
#include "levels/linux/sysfs_backlight_backend.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "testing/dbus_mock_service.h"
#include "testing/restart_drill.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

void writeFile(const QString& path, const QByteArray& text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(text + '\n');
}

QByteArray readFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

// A stand-in for /sys/class/backlight with a raw driver's backlight and a firmware one, and
// logind on the private system bus writing into it.
class SysfsBacklightBackendTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<QTemporaryDir>();
    addDevice("intel_backlight", "raw", 19393, 9000);
    addDevice("acpi_video0", "firmware", 100, 50);
    logind_ = std::make_unique<DBusMockService>(
        QDBusConnection::systemBus(), QStringLiteral("org.freedesktop.login1"),
        QStringList{"--template", TINDRA_SOURCE_DIR "/app/testing/logind_brightness.py",
                    "--parameters", QStringLiteral("{\"folder\": \"%1\"}").arg(folder_->path())});
    if (!logind_->start(&startError_)) logind_.reset();
  }
  static void TearDownTestSuite() {
    logind_.reset();
    folder_.reset();
  }
  void SetUp() override {
    if (!logind_) SKIP_OR_FAIL_ON_CI("no mocked logind: " + startError_.toStdString());
    writeFile(path("actual_brightness"), "50");
  }

  static void addDevice(const QString& name, const QByteArray& type, int maximum, int level) {
    const QString device = folder_->filePath(name);
    QDir().mkpath(device);
    writeFile(device + "/type", type);
    writeFile(device + "/max_brightness", QByteArray::number(maximum));
    writeFile(device + "/brightness", QByteArray::number(level));
    writeFile(device + "/actual_brightness", QByteArray::number(level));
  }
  static QString path(const QString& attribute) {
    return folder_->filePath("acpi_video0/" + attribute);
  }
  static bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
  }

  static inline std::unique_ptr<QTemporaryDir> folder_;
  static inline std::unique_ptr<DBusMockService> logind_;
  static inline QString startError_;
};

TEST_F(SysfsBacklightBackendTest, FollowsTheKernelAndWritesThroughLogind) {
  EXPECT_EQ(SysfsBacklightBackend::pickDevice(folder_->path()), "acpi_video0");
  SysfsBacklightBackend backend(folder_->path(), QDBusConnection::systemBus());
  QSignalSpy written(&backend, &BacklightBackend::writeFinished);
  backend.start();
  ASSERT_TRUE(backend.reading());  // shown at once, set once logind is known to run
  EXPECT_EQ(backend.reading()->level, 0.5);
  ASSERT_TRUE(waitFor([&] { return backend.access() == BrightnessAccess::readWrite; }));
  EXPECT_TRUE(backend.check().text.english().contains("acpi_video0"));

  writeFile(path("actual_brightness"), "80");  // the firmware handled a hotkey
  ASSERT_TRUE(waitFor([&] { return backend.reading()->level == 0.8; }));

  backend.setLevel(0.25);
  ASSERT_TRUE(waitFor([&] { return written.count() == 1; }));
  EXPECT_EQ(readFile(path("brightness")), "25");
  EXPECT_EQ(backend.reading()->level, 0.25);
  EXPECT_EQ(written.front().at(1).toDouble(), 0.25);

  backend.setLevel(0);  // a panel at 0 may go dark: the lowest step stays lit
  ASSERT_TRUE(waitFor([&] { return written.count() == 2; }));
  EXPECT_EQ(readFile(path("brightness")), "1");
}

TEST_F(SysfsBacklightBackendTest, WithoutLogindTheLevelIsOnlyShownUntilLogindReturns) {
  ASSERT_EQ(logind_->call("/org/freedesktop/login1", "SetRefuse", {true}), QString());
  SysfsBacklightBackend refused(folder_->path(), QDBusConnection::systemBus());
  refused.start();
  ASSERT_TRUE(waitFor([&] { return refused.access() == BrightnessAccess::readWrite; }));
  refused.setLevel(0.9);
  ASSERT_TRUE(waitFor([&] { return refused.access() == BrightnessAccess::readOnly; }));
  EXPECT_TRUE(refused.check().text.english().contains("AccessDenied"));
  EXPECT_EQ(refused.reading()->level, 0.5);
  ASSERT_EQ(logind_->call("/org/freedesktop/login1", "SetRefuse", {false}), QString());

  ASSERT_TRUE(logind_->stop());
  SysfsBacklightBackend alone(folder_->path(), QDBusConnection::systemBus());
  alone.start();
  EXPECT_EQ(alone.access(), BrightnessAccess::readOnly);
  EXPECT_EQ(alone.reading()->level, 0.5);
  ASSERT_TRUE(waitFor([&] { return alone.check().text.english().contains("not running"); }));
  // logind starting later, going and coming back is followed.
  ASSERT_TRUE(logind_->start(&startError_));
  ASSERT_TRUE(waitFor([&] { return alone.access() == BrightnessAccess::readWrite; }));
  ASSERT_TRUE(logind_->stop());
  ASSERT_TRUE(waitFor([&] { return alone.access() == BrightnessAccess::readOnly; }));
  EXPECT_EQ(alone.check().outcome, DiagnosticsLog::Outcome::degraded);
  ASSERT_TRUE(logind_->start(&startError_));
  ASSERT_TRUE(waitFor([&] { return alone.access() == BrightnessAccess::readWrite; }));
  alone.setLevel(0.3);
  ASSERT_TRUE(waitFor([&] { return readFile(path("brightness")) == "30"; }));

  QTemporaryDir empty;
  SysfsBacklightBackend none(empty.path(), QDBusConnection::systemBus());
  none.start();
  EXPECT_EQ(none.access(), BrightnessAccess::unavailable);
  EXPECT_FALSE(none.reading());
}

// logind crashing at random moments, some while a write is on its way: the keys go back to the
// desktop while it is away, come back with each new logind, and a write after the last one lands.
TEST_F(SysfsBacklightBackendTest, TheBrightnessIsSetAgainAfterEachOfManyCrashesOfLogind) {
  SysfsBacklightBackend backend(folder_->path(), QDBusConnection::systemBus());
  QStringList checks;  // as the provider copies them into the diagnostics
  QObject::connect(&backend, &BacklightBackend::checkChanged, &backend,
                   [&] { checks << backend.check().text.english(); });
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.access() == BrightnessAccess::readWrite; }));

  int written = 0;
  QElapsedTimer drill;
  drill.start();
  const RestartDrillReport report = runRestartDrill(
      "logind (brightness)",
      {.kill =
           [&] {
             backend.setLevel(0.2 + 0.01 * (++written % 50));  // its answer is lost with logind
             return logind_->kill();
           },
       .restart = [] { return logind_->start(&startError_); },
       .rightState = [&] { return backend.access() == BrightnessAccess::readWrite; },
       .showsGone = [&] { return backend.access() == BrightnessAccess::readOnly; }});
  std::printf("logind (brightness) drill: %lld ms\n", static_cast<long long>(drill.elapsed()));
  EXPECT_EQ(report.failure, QString());
  EXPECT_EQ(report.restarts, 20);
  EXPECT_EQ(checks.filter("logind is not running").size(), report.restarts);
  EXPECT_EQ(checks.filter("set through logind").size(), report.restarts + 1);

  backend.setLevel(0.6);
  EXPECT_TRUE(waitFor([&] { return readFile(path("brightness")) == "60"; }));
  EXPECT_EQ(backend.access(), BrightnessAccess::readWrite);
}

}  // namespace
}  // namespace tindra
