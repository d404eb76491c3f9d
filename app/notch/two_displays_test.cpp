// Runs in: private-session --xvfb-two
// Two displays of different sizes: a notch at the top of each, and only the main one's when the
// display choice says so.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include "notch/notch_window.h"
#include "settings/settings_keys.h"
#include "testing/notch_displays.h"

namespace tindra {
namespace {

// Xvfb offers two displays of different sizes as two X screens, each with its own origin.
TEST(TwoDisplaysTest, EachDisplayGetsItsNotchAtItsOwnTop) {
  Displays displays;
  ASSERT_EQ(QGuiApplication::screens().size(), 2);
  ASSERT_EQ(displays.manager_->windows().size(), 2u);
  for (NotchWindow* window : displays.manager_->windows()) {
    const QImage image = grabDisplay(window->screen());
    const QRect screen = window->screen()->geometry();
    const QRect notch(screen.center().x() + 1 - 95, screen.top(), 190, 24);
    EXPECT_EQ(window->notchRect().translated(window->geometry().topLeft()).toRect(), notch);
    EXPECT_TRUE(screen.contains(window->geometry()));
    expectDrawnAt(image, notch, qPrintable(window->screen()->name()));
  }

  ASSERT_TRUE(displays.store_.write(settings::displaySelection, std::string("main")));
  EXPECT_TRUE(QTest::qWaitFor([&] { return displays.manager_->windows().size() == 1; }, 1000));
  EXPECT_EQ(displays.manager_->windows().front()->screen(), QGuiApplication::primaryScreen());
}

}  // namespace
}  // namespace tindra
