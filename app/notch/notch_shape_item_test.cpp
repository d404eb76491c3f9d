#include "notch/notch_shape_item.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <functional>

void qml_register_types_Tindra();

namespace tindra {
namespace {

// A closed notch's outline, 120 by 30 in the middle of the top edge, with a rim and a glow.
NotchShapeNode::Look lit() {
  NotchShapeNode::Look look;
  look.shape.body = QRectF(40, 0, 120, 30);
  look.rimColor = Qt::red;
  look.rimWidth = 1.5;
  look.glowColor = Qt::green;
  look.glow = 1;
  return look;
}

QImage painted(const NotchShapeNode& node, QSize size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  node.paint(painter);
  return image;
}

// The renderer repaints only rect(): whatever the node draws outside it would stay on screen
// after the shape shrinks or moves. The aura stays inside the outline and off its top edge.
TEST(NotchShapeNodeTest, DrawsOnlyInsideItsRectAndLightsTheSidesAndBottom) {
  NotchShapeNode node(nullptr);
  node.setLook(lit());
  const QImage image = painted(node, {200, 60});
  const QRect bounds = node.rect().toAlignedRect();
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) > 0) {
        ASSERT_TRUE(bounds.contains(x, y)) << x << "," << y;
      }
    }
  }
  EXPECT_EQ(image.pixel(100, 0), qRgb(0, 0, 0));  // the top edge is not lit
  EXPECT_GT(qRed(image.pixel(100, 29)), 150);     // the rim along the bottom
  EXPECT_GT(qRed(image.pixel(40, 15)), 150);      // and the sides
  // The glow fades inwards and is gone past half its widest stroke.
  const int near = qGreen(image.pixel(100, 27));
  const int far = qGreen(image.pixel(100, 23));
  EXPECT_GT(near, far);
  EXPECT_GT(far, 0);
  EXPECT_EQ(image.pixel(100, 15), qRgb(0, 0, 0));
  EXPECT_EQ(qAlpha(image.pixel(20, 20)), 0);  // outside the outline

  NotchShapeNode::Look plain = lit();
  plain.rimWidth = 0;
  plain.glow = 0;
  node.setLook(plain);
  EXPECT_EQ(painted(node, {200, 60}).pixel(100, 29), qRgb(0, 0, 0));
}

class NotchShapeItemTest : public ::testing::Test {
 protected:
  // Shows `items` (QML, inside a white 200x100 window) and waits for the first frame.
  QQuickItem* show(const QByteArray& items) {
    static const bool registered = (qml_register_types_Tindra(), true);
    Q_UNUSED(registered);
    QFile file(folder_.filePath(QStringLiteral("scene.qml")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("import QtQuick\nimport Tindra\nItem {\n" + items + "\n}\n");
    file.close();
    view_.engine()->addImportPath(QStringLiteral("qrc:/"));
    view_.setColor(Qt::white);
    view_.setResizeMode(QQuickView::SizeRootObjectToView);
    view_.setSource(QUrl::fromLocalFile(file.fileName()));
    view_.resize(200, 100);
    QSignalSpy frames(&view_, &QQuickWindow::frameSwapped);
    view_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&view_));
    if (frames.isEmpty()) {
      EXPECT_TRUE(frames.wait(3000));
    }
    return view_.rootObject() ? view_.rootObject()->findChild<QQuickItem*>("shape") : nullptr;
  }
  // What the window shows, read back from its backing store rather than drawn afresh: so whatever
  // the renderer failed to repaint shows. after() waits for the frame that draws `change`.
  QImage onScreen() { return view_.screen()->grabWindow(view_.winId()).toImage(); }
  QImage after(const std::function<void()>& change) {
    QSignalSpy frames(&view_, &QQuickWindow::frameSwapped);
    change();
    if (frames.isEmpty()) {
      EXPECT_TRUE(frames.wait(3000));
    }
    return onScreen();
  }

  QTemporaryDir folder_;
  QQuickView view_;
};

// The node takes the item's place, its ancestors' opacity and their clip from the renderer.
TEST_F(NotchShapeItemTest, FollowsItsPlaceOpacityAndClip) {
  show(R"(
    Item {
      x: 20; y: 10; width: 60; height: 80; clip: true; opacity: 0.5
      NotchShape { objectName: "shape"; x: 10; y: 5; width: 100; height: 50
                   body: Qt.rect(10, 0, 80, 30) }
    })");
  const QImage shot = onScreen();
  EXPECT_EQ(qGray(shot.pixel(35, 20)), 255);   // where the shape would be without its place
  const int half = qGray(shot.pixel(50, 30));  // the shape, half transparent
  EXPECT_GT(half, 100);
  EXPECT_LT(half, 160);
  EXPECT_EQ(qGray(shot.pixel(100, 30)), 255);  // the shape's right end, clipped off
}

// A shrinking outline, and a change of colour alone, are repainted: nothing of the old one stays.
TEST_F(NotchShapeItemTest, RepaintsWhatChangedWithoutTrails) {
  QQuickItem* shape = show(R"(
    NotchShape { objectName: "shape"; anchors.fill: parent
                 body: Qt.rect(20, 0, 160, 80); glow: 1; glowColor: "lime"; rimWidth: 2
                 rimColor: "red" })");
  ASSERT_NE(shape, nullptr);
  EXPECT_EQ(qGray(onScreen().pixel(100, 40)), 0);

  const QImage shot = after([&] { shape->setProperty("body", QRectF(80, 0, 40, 20)); });
  EXPECT_EQ(qGray(shot.pixel(100, 10)), 0);
  for (const QPoint gone : {QPoint(100, 40), QPoint(30, 10), QPoint(100, 78), QPoint(22, 40)}) {
    EXPECT_EQ(shot.pixel(gone), qRgb(255, 255, 255)) << gone.x() << "," << gone.y();
  }

  const QImage blue = after([&] { shape->setProperty("color", QColor(Qt::blue)); });
  EXPECT_EQ(blue.pixel(100, 10), qRgb(0, 0, 255));
}

}  // namespace
}  // namespace tindra
