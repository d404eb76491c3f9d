// Runs in: private-session --xvfb-two
// Two displays of different sizes: a notch at the top of each, only the main one's when the
// display choice says so, and only the one picked from Settings' list of displays.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include "notch/notch_window.h"
#include "settings/settings_keys.h"
#include "shell/display_selection_editor.h"
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

// Xvfb's screens tell of no monitor (there is no EDID to read), so they go by the names the X
// server gives them; Settings lists them so, and the one chosen there alone has the notch.
TEST(TwoDisplaysTest, DisplaysWithoutAProductNameAreListedAndChosenByTheirOwnNames) {
  Displays displays;
  QScreen* second = QGuiApplication::screens().at(1);
  DisplaySelectionEditor list(*displays.screens_);
  const QStringList offered{list.itemText(3), list.itemText(4)};
  EXPECT_EQ(offered, (QStringList{QGuiApplication::primaryScreen()->name(), second->name()}));
  EXPECT_EQ(list.itemText(1), QStringLiteral("Main display (%1)").arg(offered[0]));

  QObject::connect(&list, &DisplaySelectionEditor::chosen, [&](const QString& text) {
    EXPECT_TRUE(displays.store_.write(settings::displaySelection, text.toStdString()));
  });
  emit list.activated(4);
  EXPECT_TRUE(QTest::qWaitFor([&] { return displays.manager_->windows().size() == 1; }, 1000));
  EXPECT_EQ(displays.manager_->windows().front()->screen(), second);
}

}  // namespace
}  // namespace tindra
