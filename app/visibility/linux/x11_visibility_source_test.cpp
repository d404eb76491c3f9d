// Runs in: private-session --xvfb --window-manager
// The notch stepping aside on a real X server (Xvfb) with a real EWMH window manager (openbox):
// real client windows (xmessage, and xfontsel as a game by its desktop entry) made full screen by
// wmctrl, as a user's F11 or a game's own request would.
#include "visibility/linux/x11_visibility_source.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include "base/diagnostics_log.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "settings/settings_keys.h"
#include "testing/skip_or_fail_on_ci.h"
#include "tindra_app.h"
#include "visibility/linux/desktop_entry_categories.h"
#include "visibility/visibility_monitor.h"

namespace tindra {
namespace {

bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 5000);
}

// An X client window, closed when the test ends.
class Client {
 public:
  Client(const QString& program, const QStringList& arguments) {
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.start(program, arguments);
    process_.waitForStarted();
  }
  ~Client() {
    process_.kill();
    process_.waitForFinished();
  }

 private:
  QProcess process_;
};

// wmctrl's exit status, its report left unprinted.
int wmctrl(const QStringList& arguments) {
  QProcess process;
  process.setStandardOutputFile(QProcess::nullDevice());
  process.start(QStringLiteral("wmctrl"), arguments);
  return process.waitForFinished() ? process.exitCode() : -1;
}

// Activation is asked of the window manager and done when it gets to it, so the window is named
// by its title rather than taken to be the active one yet.
void fullScreen(const QString& title, bool on) {
  wmctrl({"-r", title, "-b", on ? "add,fullscreen" : "remove,fullscreen"});
}

class X11VisibilityTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    // xfontsel is a game here, by its desktop entry, before anything asks GIO.
    const QString applications = QDir::homePath() + QStringLiteral("/.local/share/applications");
    QDir().mkpath(applications);
    QFile entry(applications + QStringLiteral("/xfontsel.desktop"));
    ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
    entry.write(
        "[Desktop Entry]\nType=Application\nName=Font Selector\nExec=xfontsel\n"
        "Categories=Game;ActionGame;\n");
  }

  void SetUp() override {
    if (wmctrl({"-m"}) != 0) {
      SKIP_OR_FAIL_ON_CI("no EWMH window manager on this display");
    }
  }

  QRect screen() const { return QGuiApplication::primaryScreen()->geometry(); }
};

// Where Qt scales, X's pixels are not Qt's: a window's frame is brought to Qt's by the display
// its centre is on, each display keeping its origin.
TEST(X11PixelsTest, FramesAreScaledByTheirDisplay) {
  const std::vector<X11VisibilitySource::ScreenScale> screens{{{0, 0}, {1280, 800}, 2},
                                                              {{2560, 0}, {1920, 1080}, 1}};
  EXPECT_EQ(X11VisibilitySource::logicalFrame({0, 0, 2560, 1600}, screens),
            (Rect{0, 0, 1280, 800}));
  EXPECT_EQ(X11VisibilitySource::logicalFrame({200, 100, 400, 300}, screens),
            (Rect{100, 50, 200, 150}));
  EXPECT_EQ(X11VisibilitySource::logicalFrame({2600, 10, 300, 200}, screens),
            (Rect{2600, 10, 300, 200}));
  // Off every display (a window parked far away): left as it is.
  EXPECT_EQ(X11VisibilitySource::logicalFrame({-5000, 0, 10, 10}, screens),
            (Rect{-5000, 0, 10, 10}));
}

TEST_F(X11VisibilityTest, GamesAreKnownByTheirDesktopEntry) {
  EXPECT_TRUE(isGameApplication("", "XFontSel"));
  EXPECT_FALSE(isGameApplication("", "Xmessage"));
  EXPECT_FALSE(isGameApplication("../../etc/passwd", ""));
}

TEST_F(X11VisibilityTest, TheNotchStepsAsideOverFullScreenWindowsAndComesBack) {
  TindraApp app({.animated = false});
  VisibilityMonitor& monitor = app.visibility();
  ASSERT_FALSE(app.notches().windows().empty());
  NotchWindow& notch = *app.notches().windows().front();
  EXPECT_TRUE(notch.isVisible());

  Client window(QStringLiteral("xmessage"), {"-geometry", "400x200+200+300", "A window"});
  ASSERT_TRUE(waitFor([&] { return wmctrl({"-a", "xmessage"}) == 0; }));
  fullScreen("xmessage", true);
  ASSERT_TRUE(waitFor([&] { return monitor.reason() == NotchHideReason::fullScreen; }));
  EXPECT_FALSE(notch.isVisible());
  EXPECT_EQ(monitor.reasonFor(screen()), NotchHideReason::fullScreen);
  EXPECT_TRUE(std::ranges::any_of(app.diagnostics().entries(), [](const auto& entry) {
    return entry.text.english() == QLatin1String("the notch steps aside: fullScreen");
  }));

  // With full-screen hiding off a full-screen window is no reason, but the next one is.
  ASSERT_TRUE(app.settings().write(settings::hideInFullScreen, false));
  ASSERT_TRUE(waitFor([&] { return notch.isVisible(); }));
  ASSERT_TRUE(app.settings().write(settings::hideInFullScreen, true));
  ASSERT_TRUE(waitFor([&] { return !notch.isVisible(); }));

  fullScreen("xmessage", false);
  ASSERT_TRUE(waitFor([&] { return notch.isVisible(); }));
  EXPECT_EQ(monitor.reason(), std::nullopt);
}

TEST_F(X11VisibilityTest, AFullScreenGameHidesItEvenWithFullScreenHidingOff) {
  TindraApp app({.animated = false});
  ASSERT_TRUE(app.settings().write(settings::hideInFullScreen, false));
  VisibilityMonitor& monitor = app.visibility();
  Client game(QStringLiteral("xfontsel"), {"-geometry", "500x200+100+100"});
  ASSERT_TRUE(waitFor([&] { return wmctrl({"-a", "xfontsel"}) == 0; }));
  QTest::qWait(100);
  EXPECT_EQ(monitor.reason(), std::nullopt);  // a windowed game hides nothing
  fullScreen("xfontsel", true);
  ASSERT_TRUE(waitFor([&] { return monitor.reason() == NotchHideReason::game; }));
  EXPECT_FALSE(app.notches().windows().front()->isVisible());

  ASSERT_TRUE(app.settings().write(settings::hideForGames, false));
  EXPECT_TRUE(waitFor([&] { return app.notches().windows().front()->isVisible(); }));
}

}  // namespace
}  // namespace tindra
