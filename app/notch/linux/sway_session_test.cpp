// Runs in: private-session --sway-two
// The sway session the notch's Wayland tests run in: two outputs of different sizes side by side
// that Qt sees as screens, outputs that come later, a client's window that goes full screen on
// the output it was started on, and a pointer that reaches clients.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QRasterWindow>
#include <QScreen>
#include <QTest>

#include "testing/picture_checks.h"
#include "testing/skip_or_fail_on_ci.h"
#include "testing/sway.h"

namespace tindra {
namespace {

class SwaySessionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!sway_.running()) SKIP_OR_FAIL_ON_CI("the session has no sway");
  }

  Sway sway_;
};

std::vector<SwayOutput> qtScreens() {
  std::vector<SwayOutput> screens;
  for (const QScreen* screen : QGuiApplication::screens())
    screens.push_back({screen->name(), screen->geometry()});
  return screens;
}

TEST_F(SwaySessionTest, HasTwoOutputsSideBySideThatQtSeesAsScreens) {
  const std::vector<SwayOutput> expected{{"HEADLESS-1", {0, 0, 1920, 1080}},
                                         {"HEADLESS-2", {1920, 0, 1280, 720}}};
  EXPECT_EQ(sway_.outputs(), expected);
  EXPECT_EQ(QGuiApplication::platformName(), "wayland");
  EXPECT_EQ(qtScreens(), expected);

  const auto added = sway_.createOutput();
  ASSERT_TRUE(added);
  EXPECT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::screens().size() == 3; }, 3000));
  // Taking one away again needs sway 1.8; Debian 12 has 1.7.
  if (sway_.canUnplug()) {
    ASSERT_TRUE(sway_.unplug(*added));
    EXPECT_TRUE(QTest::qWaitFor([&] { return qtScreens() == expected; }, 3000));
  }
}

TEST_F(SwaySessionTest, AClientsWindowGoesFullScreenOnTheOutputItStartedOn) {
  const QString foot = QStringLiteral("tindra-test-foot");
  const QColor background(0xc0, 0x40, 0x00);
  ASSERT_TRUE(sway_.command(QStringLiteral("focus output HEADLESS-1")));
  ASSERT_TRUE(sway_.startClient(
      QStringLiteral("foot --app-id=%1 -o colors.background=c04000").arg(foot), foot));

  ASSERT_TRUE(sway_.setFullScreen(true, foot));
  const auto window = sway_.window(foot);
  ASSERT_TRUE(window);
  const QJsonObject rect = window->value("rect").toObject();
  EXPECT_EQ(
      QRect(rect["x"].toInt(), rect["y"].toInt(), rect["width"].toInt(), rect["height"].toInt()),
      QRect(0, 0, 1920, 1080));
  // Mostly its background; the shell's prompt takes a few pixels.
  QImage shot;
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        shot = sway_.screenshot(QStringLiteral("HEADLESS-1"));
        return countPixels(shot, near(background)) > shot.width() * shot.height() * 9 / 10;
      },
      5000));
  EXPECT_EQ(shot.size(), QSize(1920, 1080));
  const QImage other = sway_.screenshot(QStringLiteral("HEADLESS-2"));
  EXPECT_EQ(other.size(), QSize(1280, 720));
  EXPECT_EQ(countPixels(other, near(background)), 0);

  EXPECT_TRUE(sway_.setFullScreen(false, foot));
  EXPECT_TRUE(sway_.command(QStringLiteral("[app_id=\"%1\"] kill").arg(foot)));
}

class PointerProbe : public QRasterWindow {
 public:
  QPointF at{-1, -1};
  int presses = 0;

 protected:
  void mouseMoveEvent(QMouseEvent* event) override { at = event->position(); }
  void mousePressEvent(QMouseEvent* event) override {
    at = event->position();
    ++presses;
  }
};

// A headless seat has no pointer of its own; without the session's virtual one the cursor
// commands succeed and reach nobody.
TEST_F(SwaySessionTest, ThePointerReachesAClientsWindow) {
  PointerProbe probe;
  probe.show();
  const QString appId = QCoreApplication::applicationName();
  std::optional<QJsonObject> window;
  ASSERT_TRUE(QTest::qWaitFor([&] { return (window = sway_.window(appId)).has_value(); }, 5000));
  const QPoint origin = rectOf(*window).topLeft();

  ASSERT_TRUE(sway_.movePointer(origin + QPoint(5, 7)));
  EXPECT_TRUE(QTest::qWaitFor([&] { return probe.at == QPointF(5, 7); }, 3000));
  ASSERT_TRUE(sway_.click(origin + QPoint(40, 30)));
  EXPECT_TRUE(QTest::qWaitFor([&] { return probe.presses == 1; }, 3000));
  EXPECT_EQ(probe.at, QPointF(40, 30));
}

}  // namespace
}  // namespace tindra
