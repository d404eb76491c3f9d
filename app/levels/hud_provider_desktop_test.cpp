// Runs in: private-session --xvfb --sound-server --system-bus
// The indicator on a real desktop: a private PulseAudio, an Xvfb display where xdotool presses
// the keys, a backlight folder and logind on a private system bus.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <random>

#include "levels/hud_provider.h"
#include "levels/linux/pulse_volume_backend.h"
#include "levels/linux/sysfs_backlight_backend.h"
#include "levels/linux/upower_keyboard_backlight_backend.h"
#include "levels/linux/x11_media_key_source.h"
#include "testing/dbus_mock_service.h"
#include "testing/provider_test_context.h"
#include "testing/restart_drill.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

using Key = SystemDefinedKeyEvent::Key;

QString run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  process.waitForFinished(5000);
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}
QString pactl(const QStringList& arguments) {
  return run("pactl", arguments);
}
void press(const QString& key) {
  run("xdotool", {"key", key});
}
bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 5000);
}

class HudProviderDesktopTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (!qEnvironmentVariableIsSet("TINDRA_SOUND_SERVER") ||
        qEnvironmentVariableIsEmpty("DISPLAY")) {
      return;
    }
    pactl({"load-module", "module-null-sink", "sink_name=second"});
    folder_ = std::make_unique<QTemporaryDir>();
    QDir().mkpath(folder_->filePath("panel"));
    for (const auto& [name, value] :
         {std::pair{"max_brightness", "16"}, {"brightness", "8"}, {"actual_brightness", "8"}}) {
      QFile file(folder_->filePath(QStringLiteral("panel/") + name));
      if (file.open(QIODevice::WriteOnly)) file.write(value);
    }
    logind_ = std::make_unique<DBusMockService>(
        QDBusConnection::systemBus(), QStringLiteral("org.freedesktop.login1"),
        QStringList{"--template", TINDRA_SOURCE_DIR "/app/testing/logind_brightness.py",
                    "--parameters", QStringLiteral("{\"folder\": \"%1\"}").arg(folder_->path())});
    QString error;
    if (!logind_->start(&error)) logind_.reset();
  }
  static void TearDownTestSuite() {
    if (soundServer_) {
      soundServer_->kill();
      soundServer_->waitForFinished(5000);
      soundServer_.reset();
    }
    logind_.reset();
    folder_.reset();
  }

  void SetUp() override {
    if (!logind_)
      SKIP_OR_FAIL_ON_CI("needs scripts/private-session --xvfb --sound-server --system-bus");
    pactl({"set-default-sink", "tindra_test"});
    pactl({"set-sink-volume", "tindra_test", "50%"});
    pactl({"set-sink-mute", "tindra_test", "0"});
    auto volume = std::make_unique<PulseVolumeBackend>();
    volume_ = volume.get();
    auto keys = std::make_unique<X11MediaKeySource>();
    keys_ = keys.get();
    provider_ = std::make_unique<HudProvider>(
        context_,
        HudBackends{
            std::move(volume),
            std::make_unique<SysfsBacklightBackend>(folder_->path(), QDBusConnection::systemBus()),
            std::make_unique<UPowerKeyboardBacklightBackend>(QDBusConnection::systemBus()),
            std::move(keys)});
    provider_->start();
    ASSERT_TRUE(waitFor([&] { return provider_->keyContext().volumeControllable; }));
  }

  HudViewModel& view() { return *provider_->viewModel(); }
  QString keysDiagnostic() const {
    QString text;
    for (const auto& entry : context_.diagnostics().entries()) {
      if (entry.source == "keys") text = entry.text.english();
    }
    return text;
  }

  static inline std::unique_ptr<QTemporaryDir> folder_;
  static inline std::unique_ptr<DBusMockService> logind_;
  // The sound server the test started in place of the session's, once that one was killed.
  static inline std::unique_ptr<QProcess> soundServer_;
  ProviderTestContext context_;
  X11MediaKeySource* keys_ = nullptr;
  PulseVolumeBackend* volume_ = nullptr;
  std::unique_ptr<HudProvider> provider_;
};

TEST_F(HudProviderDesktopTest, VolumeKeysChangeTheServerAndShowOnce) {
  QSignalSpy shows(&view(), &HudViewModel::changed);
  press("XF86AudioRaiseVolume");
  ASSERT_TRUE(waitFor([] { return pactl({"get-sink-volume", "tindra_test"}).contains("56%"); }));
  EXPECT_EQ(view().percent(), 56);
  EXPECT_EQ(context_.activities().current(), ActivityKind::hud);
  QTest::qWait(300);  // the server's report of the write has come and gone
  EXPECT_EQ(shows.count(), 1);

  press("XF86AudioMute");
  ASSERT_TRUE(waitFor([] { return pactl({"get-sink-mute", "tindra_test"}).contains("yes"); }));
  EXPECT_EQ(view().symbol(), "speaker.slash.fill");

  // A new default output (headphones plugged in) takes the keys' writes from then on.
  pactl({"set-sink-volume", "second", "50%"});
  pactl({"set-default-sink", "second"});
  QTest::qWait(300);
  press("XF86AudioLowerVolume");  // a fresh start on the new output: not muted, from 50 %
  ASSERT_TRUE(waitFor([] { return pactl({"get-sink-volume", "second"}).contains("44%"); }));
  EXPECT_EQ(pactl({"get-sink-mute", "second"}), "Mute: no");
  pactl({"set-sink-volume", "second", "25%"});
  ASSERT_TRUE(waitFor([&] { return view().percent() == 25; }));  // shown: changed elsewhere
}

TEST_F(HudProviderDesktopTest, AKeyAnotherProgramHoldsIsOnlyWatched) {
  provider_.reset();  // let the other program take the mute key first
  X11MediaKeySource other(std::make_shared<XcbConnection>());
  other.setWanted({{Key::mute, {}}});
  SetUp();
  EXPECT_TRUE(keysDiagnostic().contains("only watches the level for XF86AudioMute"))
      << keysDiagnostic().toStdString();
  pactl({"set-sink-mute", "tindra_test", "1"});  // what that program does with the key
  ASSERT_TRUE(waitFor([&] { return view().muted(); }));
  EXPECT_EQ(context_.activities().current(), ActivityKind::hud);
}

TEST_F(HudProviderDesktopTest, BrightnessKeysWriteThroughLogind) {
  press("XF86MonBrightnessUp");  // 8/16 on to 9/16
  ASSERT_TRUE(waitFor([&] {
    QFile file(folder_->filePath("panel/brightness"));
    return file.open(QIODevice::ReadOnly) && file.readAll().trimmed() == "9";
  }));
  EXPECT_EQ(view().kind(), "brightness");
  EXPECT_EQ(view().percent(), 56);
}

// The session's sound server is killed and replaced by one of the test's own, which the test
// kills in turn; the level shown must follow each new server, not what the last one said.
TEST_F(HudProviderDesktopTest, FollowsTheSoundServerBackAfterEveryCrash) {
  std::unique_ptr<QProcess>& server = soundServer_;
  std::mt19937 random(std::random_device{}());
  int percent = 50;
  bool muted = false;
  const auto serverProcess = [&]() -> qint64 {
    if (server) return server->processId();
    QFile file(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/pulse/pid");
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
  };
  RestartDrillSteps steps;
  steps.kill = [&] {
    const qint64 pid = serverProcess();
    if (pid <= 0 || ::kill(static_cast<pid_t>(pid), SIGKILL) != 0) return false;
    if (server) server->waitForFinished(2000);
    return true;
  };
  steps.showsGone = [&] { return !provider_->keyContext().volumeControllable; };
  steps.restart = [&] {
    server = std::make_unique<QProcess>();
    server->start("pulseaudio", {"--daemonize=no", "-n", "--exit-idle-time=-1",
                                 "--load=module-native-protocol-unix",
                                 "--load=module-null-sink sink_name=tindra_test",
                                 "--load=module-null-sink sink_name=second"});
    if (!QTest::qWaitFor([] { return !pactl({"info"}).isEmpty(); }, 5000)) return false;
    // A fresh level and mute, so that only a reading of the new server matches.
    percent = std::uniform_int_distribution<int>(0, 100)(random);
    if (percent == 50) percent = 51;
    muted = !muted;
    pactl({"set-default-sink", "tindra_test"});
    pactl({"set-sink-volume", "tindra_test", QString::number(percent) + "%"});
    pactl({"set-sink-mute", "tindra_test", muted ? "1" : "0"});
    return true;
  };
  steps.rightState = [&] {
    const auto& reading = volume_->reading();
    return provider_->keyContext().volumeControllable && reading &&
           reading->output == "tindra_test" && std::lround(reading->level * 100) == percent &&
           reading->muted == muted;
  };
  const RestartDrillReport report = runRestartDrill("sound server", steps);
  EXPECT_EQ(report.failure, QString()) << report.failure.toStdString();
  EXPECT_EQ(report.restarts, 20);

  // Diagnostics told each loss and the return.
  int wentAway = 0;
  QString last;
  for (const auto& entry : context_.diagnostics().entries()) {
    if (entry.source != "volume") continue;
    last = entry.text.english();
    if (last.contains("went away")) ++wentAway;
  }
  EXPECT_EQ(wentAway, 20);
  EXPECT_TRUE(last.contains("following the sound server's default output")) << last.toStdString();
}

// Runs last: it leaves the server without outputs.
TEST_F(HudProviderDesktopTest, WithoutAnOutputTheVolumeKeysGoBackToTheDesktop) {
  pactl({"unload-module", "module-null-sink"});
  ASSERT_TRUE(waitFor([&] { return !provider_->keyContext().volumeControllable; }));
  EXPECT_TRUE(keysDiagnostic().contains("leaves XF86AudioRaiseVolume"));
  X11MediaKeySource desktop(std::make_shared<XcbConnection>());  // the desktop can take it now
  desktop.setWanted({{Key::soundUp, {}}});
  EXPECT_TRUE(desktop.refused().empty());
}

}  // namespace
}  // namespace tindra
