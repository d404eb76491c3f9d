// Runs in: private-session --xvfb
// Swipes on the notch with the real pointer (XTest wheel buttons and drags on Xvfb) and a real
// player (mpv on the session bus, through the now-playing adapter).
#include <gtest/gtest.h>

#include <QTest>

#include "media/now_playing_provider.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "testing/mpv_player.h"
#include "testing/skip_or_fail_on_ci.h"
#include "testing/xdotool.h"
#include "tindra_app.h"

namespace tindra {
namespace {

// X11's wheel buttons: 4 up, 5 down, 6 left, 7 right; each click is one notch.
void wheel(const QPoint& at, int button) {
  xdotool({"mousemove", QString::number(at.x()), QString::number(at.y()), "click",
           QString::number(button)});
  QTest::qWait(SwipeRecognizer::pause * 1000 + 100);  // the next click is a gesture of its own
}

void drag(const QPoint& from, const QPoint& by) {
  const QPoint to = from + by;
  xdotool({"mousemove", QString::number(from.x()), QString::number(from.y()), "mousedown", "1",
           "mousemove", QString::number(from.x() + by.x() / 2), QString::number(from.y()),
           "mousemove", QString::number(to.x()), QString::number(to.y()), "mouseup", "1"});
}

class NotchSwipeDesktopTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (const QString missing = MpvPlayer::missing(); !missing.isEmpty()) {
      SKIP_OR_FAIL_ON_CI(missing.toStdString());
    }
  }
};

TEST_F(NotchSwipeDesktopTest, SwipesOpenAndCloseTheNotchAndSkipTracks) {
  MpvPlayer player({"first", "second", "third"});
  ASSERT_TRUE(player.onBus());
  TindraApp app({.animated = false});
  ASSERT_TRUE(app.settings().write(settings::notchOpeningMode, NotchOpeningMode::click));
  NotchWindow& notch = *app.notches().windows().front();
  const QPoint centre = notch.geometry().topLeft() + notch.notchRect().center().toPoint();
  const auto* media = app.providers().get<NowPlayingProvider>().viewModel();
  const auto playing = [&](const QString& track) {
    return QTest::qWaitFor([&] { return media->title().startsWith(track); }, 5000);
  };
  const auto opens = [&] { return QTest::qWaitFor([&] { return notch.isExpanded(); }, 3000); };
  ASSERT_TRUE(playing("first"));

  // The wheel up brings the panel down, as if pulled; down puts it away.
  wheel(centre, 4);
  EXPECT_TRUE(opens());
  wheel(centre, 5);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !notch.isExpanded(); }, 3000));

  // Sideways: scrolling right moves the track away to the left and brings the next one.
  wheel(centre, 7);
  EXPECT_TRUE(playing("second"));
  wheel(centre, 6);
  EXPECT_TRUE(playing("first"));

  // Each switch is the user's: none of it happens with gestures off.
  ASSERT_TRUE(app.settings().write(settings::swipeChangesTrack, false));
  wheel(centre, 7);
  wheel(centre, 4);
  EXPECT_TRUE(opens());
  wheel(centre, 5);
  EXPECT_TRUE(playing("first"));
  ASSERT_TRUE(app.settings().write(settings::swipeGestures, false));
  wheel(centre, 4);
  EXPECT_FALSE(notch.isExpanded());

  // Mouse drags act as swipes only when asked.
  ASSERT_TRUE(app.settings().write(settings::swipeChangesTrack, true));
  drag(centre, {-90, 0});
  QTest::qWait(500);
  EXPECT_TRUE(playing("first"));
  notch.close();
  ASSERT_TRUE(app.settings().write(settings::mouseDragGestures, true));
  drag(centre, {-90, 0});
  EXPECT_TRUE(playing("second"));
  EXPECT_FALSE(notch.isExpanded());
  drag(centre, {0, 70});
  EXPECT_TRUE(opens());
}

}  // namespace
}  // namespace tindra
