#include "notch/notch_screen_manager.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>

#include "base/activity_center.h"
#include "notch/notch_window.h"
#include "settings/settings_keys.h"
#include "testing/fake_screen_source.h"
#include "views/notch_content.h"

namespace tindra {
namespace {

// A laptop-sized main display with a 30-point top panel, and a smaller one to its right whose
// top sits lower.
const FakeScreenSource::Screen wide{1, "DP-1", {0, 0, 1920, 1080}, {0, 30, 1920, 1050}, true};
const FakeScreenSource::Screen small{2, "HDMI-1", {1920, 200, 1280, 800}, {1920, 200, 1280, 800}};

class NotchScreenManagerTest : public ::testing::Test {
 protected:
  NotchScreenManagerTest() {
    source_.set({wide, small});
    manager_.rebuild();
  }

  // The closed notch of each window, in global top-left coordinates.
  std::vector<QRectF> notches() {
    QCoreApplication::processEvents();
    std::vector<QRectF> result;
    for (NotchWindow* window : manager_.windows()) {
      result.push_back(window->notchRect().translated(window->geometry().topLeft()));
    }
    return result;
  }

  QTemporaryDir dir_;
  SettingsStore store_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  ActivityCenter activities_{store_};
  FakeScreenSource source_;
  ViewRegistry views_{ViewRegistry::Declared{}};
  NotchContent content_{activities_, store_, views_};
  NotchScreenManager manager_{source_, store_, activities_, content_,
                              [](NotchWindow& window) { window.setAnimated(false); }};
};

TEST_F(NotchScreenManagerTest, OneNotchAtTheTopCentreOfEachDisplay) {
  // The notch matches the panel's height where there is one, else takes 24 points.
  EXPECT_EQ(notches(), (std::vector<QRectF>{{865, 0, 190, 30}, {2465, 200, 190, 24}}));
  for (NotchWindow* window : manager_.windows()) {
    const QRect screen =
        window->notchGeometry().screenFrame.width == 1920 ? wide.geometry : small.geometry;
    EXPECT_TRUE(screen.contains(window->geometry())) << window->geometry().x();
    EXPECT_EQ(window->geometry().top(), screen.top());
  }
}

TEST_F(NotchScreenManagerTest, FollowsTheDisplaySettingsWhileRunning) {
  ASSERT_TRUE(store_.write(settings::displaySelection, std::string("named:HDMI-1")));
  EXPECT_EQ(notches(), (std::vector<QRectF>{{2465, 200, 190, 24}}));

  ASSERT_TRUE(store_.write(settings::displaySelection, std::string("main")));
  ASSERT_TRUE(store_.write(settings::simulatedNotchWidth, 300.0));
  ASSERT_TRUE(store_.write(settings::simulatedNotchMatchesMenuBar, false));
  ASSERT_TRUE(store_.write(settings::simulatedNotchHeight, 40.0));
  EXPECT_EQ(notches(), (std::vector<QRectF>{{810, 0, 300, 40}}));

  // No display here has a camera notch, so turning drawn notches off leaves none.
  ASSERT_TRUE(store_.write(settings::showOnDisplaysWithoutNotch, false));
  EXPECT_TRUE(notches().empty());
}

TEST_F(NotchScreenManagerTest, FollowsDisplaysAddedRemovedAndResized) {
  const std::vector<NotchWindow*> before = manager_.windows();
  FakeScreenSource::Screen grown = small;
  grown.geometry = grown.available = {1920, 0, 2560, 1440};
  source_.set({wide, grown});
  EXPECT_EQ(notches(), (std::vector<QRectF>{{865, 0, 190, 30}, {3105, 0, 190, 24}}));
  EXPECT_EQ(manager_.windows(), before);  // moved, not rebuilt

  source_.set({wide});
  EXPECT_EQ(notches(), (std::vector<QRectF>{{865, 0, 190, 30}}));
  EXPECT_EQ(manager_.windows().front(), before.front());

  // A named display that is gone leaves the notch on the main one until it is back.
  ASSERT_TRUE(store_.write(settings::displaySelection, std::string("named:HDMI-1")));
  EXPECT_EQ(notches(), (std::vector<QRectF>{{865, 0, 190, 30}}));
  source_.set({wide, small});
  EXPECT_EQ(notches(), (std::vector<QRectF>{{2465, 200, 190, 24}}));
}

TEST_F(NotchScreenManagerTest, ANamedChoiceFindsItsDisplayByTheNamesItWentBy) {
  // Two monitors of one model: "DELL U2720Q (DP-1)" and "DELL U2720Q (HDMI-1)".
  FakeScreenSource::Screen left = wide;
  FakeScreenSource::Screen right = small;
  left.productName = right.productName = "DELL U2720Q";
  source_.set({left, right});
  const std::vector<QRectF> both = notches();
  const auto chosen = [this](const std::string& selection) {
    EXPECT_TRUE(store_.write(settings::displaySelection, selection));
    return notches();
  };
  EXPECT_EQ(chosen("named:DELL U2720Q (HDMI-1)"), (std::vector{both[1]}));
  EXPECT_EQ(chosen("named:HDMI-1"), (std::vector{both[1]})) << "by connector, as stored before";
  EXPECT_EQ(chosen("named:DELL U2720Q"), both) << "a model name means every monitor of it";

  // The twin chosen by its bracketed name is unplugged: the main display has the notch until
  // it is back.
  source_.set({left});
  EXPECT_EQ(chosen("named:DELL U2720Q (HDMI-1)"), (std::vector{both[0]}));
  source_.set({left, right});
  EXPECT_EQ(notches(), (std::vector{both[1]}));

  // A laptop panel is the built-in display, whatever its connector or product code.
  FakeScreenSource::Screen panel = wide;
  panel.connector = "eDP-1";
  panel.productName = "0x08E8";
  source_.set({panel, small});
  EXPECT_EQ(chosen("builtIn"), (std::vector{both[0]}));
  EXPECT_EQ(chosen("named:eDP-1"), (std::vector{both[0]}));
}

TEST_F(NotchScreenManagerTest, StepsAsideWhileLockedEvenForDisplaysThatArrive) {
  const auto visible = [this] {
    std::vector<bool> shown;
    for (NotchWindow* window : manager_.windows()) shown.push_back(window->isVisible());
    return shown;
  };
  manager_.setSteppedAside(true);
  EXPECT_EQ(visible(), (std::vector{false, false}));
  source_.set({wide});
  source_.set({wide, small});
  manager_.rebuild();
  EXPECT_EQ(visible(), (std::vector{false, false}));
  manager_.setSteppedAside(false);
  EXPECT_EQ(visible(), (std::vector{true, true}));
}

TEST(NotchWindowLayoutTest, TheLevelShowsOnlyOnThePointersDisplay) {
  const QRect left(0, 0, 1920, 1080), right(1920, 0, 1280, 800);
  const QPoint pointer(2500, 300);
  EXPECT_TRUE(NotchWindow::showsCompact(ActivityKind::hud, right, pointer));
  EXPECT_FALSE(NotchWindow::showsCompact(ActivityKind::hud, left, pointer));
  EXPECT_TRUE(NotchWindow::showsCompact(ActivityKind::nowPlaying, left, pointer));
  EXPECT_FALSE(NotchWindow::showsCompact(ActivityKind::idle, right, pointer));
  EXPECT_TRUE(NotchWindow::showsCompact(ActivityKind::hud, QRect(), pointer));  // no display yet
}

TEST(NotchWindowLayoutTest, StaysOnItsDisplayAndCentresOnTheNotch) {
  const ScreenCoordinates flip{900};
  // A hardware notch off the centre of a 1512-wide display.
  NotchGeometry hardware{NotchGeometry::Kind::hardware, {0, 0, 1512, 900}, {500, 868, 112, 32}};
  NotchWindowLayout layout = NotchWindowLayout::forGeometry(hardware, flip);
  EXPECT_EQ(layout.notchRect.center().x() + layout.windowRect.x(), 556);
  EXPECT_EQ(layout.windowRect.top(), 0);
  EXPECT_GE(layout.windowRect.width(), layout.panelSize.width());

  // A display narrower than the panel: the window fills its width and no more.
  NotchGeometry narrow{NotchGeometry::Kind::simulated, {0, 0, 400, 900}, {105, 876, 190, 24}};
  layout = NotchWindowLayout::forGeometry(narrow, flip);
  EXPECT_EQ(layout.windowRect, QRect(0, 0, 400, layout.windowRect.height()));
  EXPECT_LE(layout.panelSize.width() + 2 * NotchWindowLayout::flareRadius, 400);
  EXPECT_EQ(layout.notchRect, QRectF(105, 0, 190, 24));

  // A notch at the very edge of a display keeps its window inside the display.
  NotchGeometry edge{NotchGeometry::Kind::hardware, {0, 0, 1512, 900}, {0, 868, 112, 32}};
  layout = NotchWindowLayout::forGeometry(edge, flip);
  EXPECT_EQ(layout.windowRect.left(), 0);
  EXPECT_EQ(layout.notchRect.left(), 0);
}

}  // namespace
}  // namespace tindra
