// Runs in: private-session --kwin
// Tindra as a user meets it on a Plasma desktop: the built program on a headless KWin, granted
// KWin's window list by its desktop entry as an installed Tindra is, its notch a layer surface
// that steps aside for a window started full screen and comes back when it is gone.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

// KWin tells a program by the desktop entry whose Exec is its absolute path; the session's HOME
// is fresh, so entries written here are the only ones of their name.
void installDesktopEntry(const QString& name, QByteArray entry, const QString& program) {
  const QString applications = QDir::homePath() + QStringLiteral("/.local/share/applications");
  QDir().mkpath(applications);
  const QByteArray exec = "Exec=" + QFileInfo(program).canonicalFilePath().toUtf8();
  const qsizetype line = entry.indexOf("\nExec=");
  if (line < 0) {
    entry += "\n" + exec + "\n";
  } else {
    entry.replace(line + 1, entry.indexOf('\n', line + 1) - line - 1, exec);
  }
  QFile file(applications + QLatin1Char('/') + name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(entry);
}

class PlasmaWindowVisibilityTest : public ::testing::Test {
 protected:
  // One Tindra for the whole program, with the desktop entry it is installed with.
  static void SetUpTestSuite() {
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return;
    QFile packaged(QStringLiteral(TINDRA_SOURCE_DIR "/packaging/com.brenvik.Tindra.desktop"));
    ASSERT_TRUE(packaged.open(QIODevice::ReadOnly));
    installDesktopEntry(QStringLiteral("com.brenvik.Tindra.desktop"), packaged.readAll(),
                        QStringLiteral(TINDRA_BINARY));
    const QDir config(qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/tindra"));
    config.mkpath(QStringLiteral("."));
    QFile settings(config.filePath(QStringLiteral("settings.json")));
    if (settings.open(QIODevice::WriteOnly)) settings.write(R"({"onboardingCompleted": true})");
    settings.close();
    tindra = new QProcess;
    tindra->start(QStringLiteral(TINDRA_BINARY), {});
    tindra->waitForStarted();
  }
  static void TearDownTestSuite() {
    if (tindra == nullptr) return;
    tindra->terminate();
    tindra->waitForFinished(5000);
    delete std::exchange(tindra, nullptr);
  }

  void SetUp() override {
    if (tindra == nullptr) SKIP_OR_FAIL_ON_CI("the session has no KWin");
    ASSERT_EQ(tindra->state(), QProcess::Running) << "Tindra stopped:\n" << log().toStdString();
    // Started once it has said what its notch is; a loaded machine may take a while.
    ASSERT_TRUE(waitForLog(QStringLiteral("tindra.notch: notch "), 0, 30000))
        << log().toStdString();
  }

  // All that Tindra has written to stderr so far.
  static QString log() {
    said += QString::fromUtf8(tindra->readAllStandardError());
    return said;
  }
  // Waits (up to `timeoutMs`) until Tindra says `line` after position `from` of its log.
  static bool waitForLog(const QString& line, qsizetype from = 0, int timeoutMs = 5000) {
    return QTest::qWaitFor([&] { return log().indexOf(line, from) >= 0; }, timeoutMs);
  }

  static QProcess* tindra;
  static QString said;
};

QProcess* PlasmaWindowVisibilityTest::tindra = nullptr;
QString PlasmaWindowVisibilityTest::said;

TEST_F(PlasmaWindowVisibilityTest, TheNotchIsALayerSurfaceFollowingKWinsWindowList) {
  EXPECT_TRUE(waitForLog(QStringLiteral("the notch is a layer surface on the Wayland compositor")))
      << log().toStdString();
  // Only granted by the desktop entry: without it KWin offers no window list at all.
  EXPECT_TRUE(waitForLog(QStringLiteral("Plasma window management"))) << log().toStdString();
}

TEST_F(PlasmaWindowVisibilityTest, StepsAsideForAFullScreenWindowAndComesBackWhenItLeaves) {
  // A window of another program's, full screen from its start: Qt's QML runtime showing one.
  QTemporaryDir dir;
  QFile scene(dir.filePath(QStringLiteral("full-screen.qml")));
  ASSERT_TRUE(scene.open(QIODevice::WriteOnly));
  scene.write("import QtQuick\nWindow { visibility: Window.FullScreen; color: \"#c04000\" }\n");
  scene.close();
  const qsizetype before = log().size();
  QProcess window;
  window.start(QStringLiteral("/usr/lib/qt6/bin/qml"), {scene.fileName()});
  ASSERT_TRUE(window.waitForStarted());
  EXPECT_TRUE(waitForLog(QStringLiteral("the notch steps aside: fullScreen"), before))
      << log().mid(before).toStdString();

  const qsizetype aside = log().size();
  window.terminate();
  window.waitForFinished(3000);
  EXPECT_TRUE(waitForLog(QStringLiteral("the notch shows"), aside))
      << log().mid(aside).toStdString();
}

}  // namespace
}  // namespace tindra
