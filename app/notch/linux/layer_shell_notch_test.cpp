// Runs in: private-session --sway-two --sound-server
// Tindra as a user meets it on a wlroots desktop: the built program on a headless sway with two
// outputs, its notch a layer surface on each, seen through grim's screenshots and driven with
// the seat's pointer, sway's windows and `tindra level` commands.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "testing/picture_checks.h"
#include "testing/skip_or_fail_on_ci.h"
#include "testing/sway.h"
#include "testing/test_pointer.h"

namespace tindra {
namespace {

const QString left = QStringLiteral("HEADLESS-1");
const QString right = QStringLiteral("HEADLESS-2");

// The notch is black; sway's empty background is #3f3f3f and the test windows are orange.
const PixelTest notchBlack = near(Qt::black, 10);
const QColor windowColour(0xc0, 0x40, 0x00);

// The notch's window spans this strip of the top centre of an output.
QRect topCentre(const QImage& shot) {
  return {shot.width() / 2 - 320, 0, 640, 220};
}

// The black outline in the top centre of an output's screenshot.
QRect notchIn(const QImage& shot) {
  return areaOf(shot, notchBlack, topCentre(shot));
}

// Writes the settings file as a user's edit would; the running Tindra follows it.
void writeSettings(const QByteArray& json) {
  const QDir config(qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/tindra"));
  config.mkpath(QStringLiteral("."));
  QFile settings(config.filePath(QStringLiteral("settings.json")));
  ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
  settings.write(json);
}

const QByteArray welcomed = R"({"onboardingCompleted": true, "experimentalFileTray": true})";

QString runTindra(const QStringList& arguments, int* exitCode = nullptr) {
  QProcess command;
  command.start(QStringLiteral(TINDRA_BINARY), arguments);
  EXPECT_TRUE(command.waitForFinished(10000));
  if (exitCode) *exitCode = command.exitCode();
  return QString::fromUtf8(command.readAllStandardOutput() + command.readAllStandardError());
}

int sinkVolumePercent() {
  QProcess pactl;
  pactl.start(QStringLiteral("pactl"), {"get-sink-volume", "@DEFAULT_SINK@"});
  pactl.waitForFinished();
  // "Volume: front-left: 32768 /  50% / …"
  const QString said = QString::fromUtf8(pactl.readAllStandardOutput());
  const qsizetype percent = said.indexOf('%');
  if (percent < 0) return -1;
  const qsizetype start = said.lastIndexOf(' ', percent - 1) + 1;
  return said.mid(start, percent - start).toInt();
}

class LayerShellNotchTest : public ::testing::Test {
 protected:
  // One Tindra for the whole program, started as a user's session would start it.
  static void SetUpTestSuite() {
    writeSettings(welcomed);
    tindra = new QProcess;
    tindra->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tindra->start(QStringLiteral(TINDRA_BINARY), {});
  }
  static void TearDownTestSuite() {
    tindra->terminate();
    tindra->waitForFinished(5000);
    delete std::exchange(tindra, nullptr);
  }

  void SetUp() override {
    if (!sway_.running()) SKIP_OR_FAIL_ON_CI("the session has no sway");
    ASSERT_EQ(tindra->state(), QProcess::Running) << "Tindra stopped";
    // Closed, the notch hangs from the top edge of both outputs.
    ASSERT_TRUE(waitForNotch(left, [](const QRect& notch) { return notch.top() == 0; }));
    ASSERT_TRUE(waitForNotch(right, [](const QRect& notch) { return notch.top() == 0; }));
  }
  void TearDown() override {
    for (const QString& appId : started_)
      sway_.command(QStringLiteral("[app_id=%1] kill").arg(appId));
    sway_.movePointer({100, 900});
  }

  // A window of a colour of its own, tiled on `output`.
  void startWindow(const QString& appId, const QString& output) {
    ASSERT_TRUE(sway_.command(QStringLiteral("focus output %1").arg(output)));
    ASSERT_TRUE(sway_.startClient(
        QStringLiteral("foot --app-id=%1 -o colors.background=c04000").arg(appId), appId));
    started_.push_back(appId);
  }

  // Waits (up to 5 s, screenshots all along) until the notch on `output` passes `test`.
  bool waitForNotch(const QString& output, const std::function<bool(const QRect&)>& test) {
    return QTest::qWaitFor(
        [&] {
          shot_ = sway_.screenshot(output);
          return test(notchIn(shot_));
        },
        5000);
  }

  static QProcess* tindra;
  Sway sway_;
  QImage shot_;
  QStringList started_;
};

QProcess* LayerShellNotchTest::tindra = nullptr;

TEST_F(LayerShellNotchTest, HangsFromTheTopCentreOfEveryOutputOverATiledWindow) {
  startWindow(QStringLiteral("tiled"), left);
  // The window fills the rest of the top edge once it has drawn: the notch is over it, not
  // beside or under it.
  ASSERT_TRUE(waitForNotch(left, [&](const QRect& notch) {
    return !notch.isEmpty() &&
           countPixels(shot_, near(windowColour), QRect(0, 0, 1920, 40)) > 1920 * 30;
  }));
  const QRect notch = notchIn(shot_);
  EXPECT_EQ(notch.top(), 0);
  EXPECT_NEAR(notch.center().x(), 960, 2);
  EXPECT_LT(notch.height(), 60) << "closed";

  ASSERT_TRUE(waitForNotch(right, [](const QRect& notch) { return !notch.isEmpty(); }));
  EXPECT_NEAR(notchIn(shot_).center().x(), 640, 2);

  // A display plugged in later gets its own.
  const std::optional<QString> third = sway_.createOutput();
  ASSERT_TRUE(third);
  EXPECT_TRUE(waitForNotch(*third, [](const QRect& notch) { return notch.top() == 0; }));
  // Taking it away again needs sway 1.8 (`output … unplug`); Debian 12 has 1.7.
  if (sway_.canUnplug()) {
    EXPECT_TRUE(sway_.unplug(*third));
  }
}

TEST_F(LayerShellNotchTest, ShowsOnTheOutputTheDisplayChoiceNames) {
  // sway's outputs are twins of the model "headless": each goes by the model and its connector,
  // and by the connector alone, as choices were stored before.
  for (const char* name : {"headless (HEADLESS-2)", "HEADLESS-2"}) {
    writeSettings(
        QStringLiteral(
            R"({"onboardingCompleted": true, "experimentalFileTray": true, "displaySelection": "named:%1"})")
            .arg(QLatin1String(name))
            .toUtf8());
    EXPECT_TRUE(waitForNotch(left, [](const QRect& notch) { return notch.isEmpty(); })) << name;
    EXPECT_TRUE(waitForNotch(right, [](const QRect& notch) { return !notch.isEmpty(); })) << name;
    writeSettings(welcomed);
    EXPECT_TRUE(waitForNotch(left, [](const QRect& notch) { return !notch.isEmpty(); }));
  }
}

TEST_F(LayerShellNotchTest, OpensUnderThePointerAndClosesWhenItLeaves) {
  ASSERT_TRUE(waitForNotch(right, [](const QRect& notch) { return !notch.isEmpty(); }));
  const QRect closed = notchIn(shot_);
  ASSERT_TRUE(sway_.movePointer({1920 + 640, 4}));
  EXPECT_TRUE(waitForNotch(right, [&](const QRect& notch) {
    return notch.height() > 2 * closed.height() && notch.width() > closed.width();
  })) << "opened";
  ASSERT_TRUE(sway_.movePointer({1920 + 640, 600}));
  EXPECT_TRUE(waitForNotch(right, [&](const QRect& notch) { return notch == closed; }))
      << "closed again";
}

TEST_F(LayerShellNotchTest, AClickBesideTheOutlineReachesTheWindowBelow) {
  startWindow(QStringLiteral("below"), left);
  startWindow(QStringLiteral("elsewhere"), right);
  ASSERT_EQ(sway_.focusedWindow()->value("app_id").toString(), "elsewhere");
  // Inside the notch's surface, which is as large as the opened panel, but beside the outline.
  ASSERT_TRUE(sway_.click({960 - 240, 120}));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return sway_.focusedWindow()->value("app_id").toString() == "below"; }, 3000));
}

TEST_F(LayerShellNotchTest, StepsAsideForAFullScreenWindowOnItsOutputOnly) {
  startWindow(QStringLiteral("video"), left);
  ASSERT_TRUE(sway_.setFullScreen(true, QStringLiteral("video")));
  EXPECT_TRUE(waitForNotch(left, [](const QRect& notch) { return notch.isEmpty(); }))
      << "aside over the full-screen window";
  EXPECT_GT(countPixels(shot_, near(windowColour), topCentre(shot_)), 600 * 200);
  EXPECT_TRUE(waitForNotch(right, [](const QRect& notch) { return !notch.isEmpty(); }))
      << "still there on the other output";

  ASSERT_TRUE(sway_.setFullScreen(false, QStringLiteral("video")));
  EXPECT_TRUE(waitForNotch(left, [](const QRect& notch) { return !notch.isEmpty(); }))
      << "back when it leaves full screen";
}

TEST_F(LayerShellNotchTest, ALevelCommandStepsTheVolumeAndShowsTheIndicator) {
  ASSERT_TRUE(waitForNotch(left, [](const QRect& notch) { return !notch.isEmpty(); }));
  const QRect idle = notchIn(shot_);
  ASSERT_EQ(QProcess::execute("pactl", {"set-sink-volume", "@DEFAULT_SINK@", "50%"}), 0);
  int exitCode = -1;
  const QString said = runTindra({"level", "volume", "up"}, &exitCode);
  EXPECT_EQ(exitCode, 0) << said.toStdString();
  EXPECT_TRUE(QTest::qWaitFor([] { return sinkVolumePercent() > 50; }, 3000))
      << sinkVolumePercent();
  // The level shows on the notch's ears, wider than the idle notch.
  EXPECT_TRUE(
      waitForNotch(left, [&](const QRect& notch) { return notch.width() > idle.width() + 40; }));
}

TEST_F(LayerShellNotchTest, AFileDroppedOnTheNotchLandsInTheTray) {
  QTemporaryDir dir;
  const QString file = dir.filePath(QStringLiteral("minutes.txt"));
  QFile(file).open(QIODevice::WriteOnly);
  // Another program drags the file out of a surface of its own and lets go over the notch.
  TestPointer pointer;
  ASSERT_TRUE(pointer.running());
  ASSERT_TRUE(pointer.send(QStringLiteral("drag-files ") + QUrl::fromLocalFile(file).toString()));
  ASSERT_TRUE(pointer.send(QStringLiteral("move 960 10")));
  ASSERT_TRUE(pointer.waitForEvent(QStringLiteral("action copy")))
      << pointer.events().join(", ").toStdString();
  ASSERT_TRUE(pointer.send(QStringLiteral("release")));
  EXPECT_TRUE(pointer.waitForEvent(QStringLiteral("finished")))
      << pointer.events().join(", ").toStdString();

  QFile tray(QDir::home().filePath(QStringLiteral(".local/share/tindra/file-tray.json")));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return tray.open(QIODevice::ReadOnly) && tray.readAll().contains("minutes.txt"); },
      3000))
      << "the tray keeps it";
}

TEST_F(LayerShellNotchTest, ItsMenuIsDrawnInsideTheNotchAndOpensWhatIsChosen) {
  // No tray here, so a right click on the notch offers the shell menu. A menu window would be
  // tiled like any other; the notch draws it inside its own surface instead.
  TestPointer pointer;
  ASSERT_TRUE(pointer.send(QStringLiteral("move 960 8")));
  ASSERT_TRUE(pointer.send(QStringLiteral("right-press")));
  ASSERT_TRUE(pointer.send(QStringLiteral("right-release")));
  // The second item, Diagnostics…, hangs 24 px below the first, just under the click.
  ASSERT_TRUE(pointer.send(QStringLiteral("move 1010 52")));
  ASSERT_TRUE(pointer.send(QStringLiteral("press")));
  ASSERT_TRUE(pointer.send(QStringLiteral("release")));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        const auto focused = sway_.focusedWindow();
        return focused && focused->value("name").toString() == "Tindra Diagnostics";
      },
      3000));
  sway_.command(QStringLiteral("[title=\"Tindra Diagnostics\"] kill"));
}

}  // namespace
}  // namespace tindra
