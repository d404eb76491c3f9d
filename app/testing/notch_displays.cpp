#include "testing/notch_displays.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QTest>

#include "notch/notch_window.h"
#include "notch/screen_source_factory.h"

namespace tindra {

std::vector<std::unique_ptr<QWidget>> showDesktops() {
  std::vector<std::unique_ptr<QWidget>> result;
  for (QScreen* screen : QGuiApplication::screens()) {
    auto widget = std::make_unique<QWidget>();
    widget->setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint);
    widget->setAutoFillBackground(true);
    widget->setPalette(QPalette(desktop));
    widget->setScreen(screen);
    widget->setGeometry(screen->geometry());
    widget->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
    result.push_back(std::move(widget));
  }
  return result;
}

QImage grabDisplay(QScreen* screen) {
  return screen->grabWindow(0).toImage();
}

bool isDesktop(const QImage& image, QPoint p) {
  const QColor c = image.pixelColor(p);
  return std::abs(c.red() - desktop.red()) + std::abs(c.green() - desktop.green()) +
             std::abs(c.blue() - desktop.blue()) <
         12;
}
bool isNotch(const QImage& image, QPoint p) {
  return !isDesktop(image, p);
}

std::pair<int, int> blackRun(const QImage& image, int row, int x) {
  int left = x;
  int right = x;
  while (left > 0 && isNotch(image, {left - 1, row})) --left;
  while (right < image.width() && isNotch(image, {right, row})) ++right;
  return {left, right};
}

void expectDrawnAt(const QImage& image, const QRect& expected, const char* what) {
  SCOPED_TRACE(what);
  const int middleRow = expected.top() + expected.height() / 2;
  const auto [left, right] = blackRun(image, middleRow, expected.center().x());
  EXPECT_NEAR(left, expected.left(), 1);
  EXPECT_NEAR(right, expected.left() + expected.width(), 1);
  int bottom = expected.top();
  while (bottom < image.height() && isNotch(image, {expected.center().x(), bottom})) ++bottom;
  EXPECT_NEAR(bottom, expected.top() + expected.height(), 1);
  // Around the outline the desktop shows through.
  EXPECT_TRUE(isDesktop(image, {expected.center().x(), bottom + 3}));
  EXPECT_TRUE(isDesktop(image, {left - 12, middleRow}));
  EXPECT_TRUE(isDesktop(image, {right + 12, middleRow}));
}

Displays::Displays() {
  screens_ = makePlatformScreenSource();
  manager_ =
      std::make_unique<NotchScreenManager>(*screens_, store_, activities_, content_,
                                           [](NotchWindow& window) { window.setAnimated(false); });
  desktops_ = showDesktops();
  for (NotchWindow* window : manager_->windows()) {
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
    window->raise();
  }
  QTest::qWait(200);
}

}  // namespace tindra
