// NotchShapeItem: draws a NotchShape in Qt Quick, as "NotchShape" in the "Tindra" QML module.
// Under the software scene graph it paints straight into the window (NotchShapeNode); under any
// other graphics API it draws nothing and says so once.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QQuickItem>

#include "notch/notch_shape_node.h"

namespace tindra {

class NotchShapeItem : public QQuickItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(NotchShape)
  Q_PROPERTY(QRectF body READ body WRITE setBody NOTIFY shapeChanged)
  Q_PROPERTY(double bottomRadius READ bottomRadius WRITE setBottomRadius NOTIFY shapeChanged)
  Q_PROPERTY(double flareRadius READ flareRadius WRITE setFlareRadius NOTIFY shapeChanged)
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY shapeChanged)
  // A line just inside the outline's sides and bottom; none at width 0.
  Q_PROPERTY(QColor rimColor READ rimColor WRITE setRimColor NOTIFY shapeChanged)
  Q_PROPERTY(double rimWidth READ rimWidth WRITE setRimWidth NOTIFY shapeChanged)
  // Light along the inside of the outline, fading inwards; 0 none, 1 brightest.
  Q_PROPERTY(QColor glowColor READ glowColor WRITE setGlowColor NOTIFY shapeChanged)
  Q_PROPERTY(double glow READ glow WRITE setGlow NOTIFY shapeChanged)

 public:
  explicit NotchShapeItem(QQuickItem* parent = nullptr);

  QRectF body() const { return look_.shape.body; }
  void setBody(const QRectF& body) { set(look_.shape.body, body); }
  double bottomRadius() const { return look_.shape.bottomRadius; }
  void setBottomRadius(double radius) { set(look_.shape.bottomRadius, radius); }
  double flareRadius() const { return look_.shape.flareRadius; }
  void setFlareRadius(double radius) { set(look_.shape.flareRadius, radius); }
  QColor color() const { return look_.color; }
  void setColor(const QColor& color) { set(look_.color, color); }
  QColor rimColor() const { return look_.rimColor; }
  void setRimColor(const QColor& color) { set(look_.rimColor, color); }
  double rimWidth() const { return look_.rimWidth; }
  void setRimWidth(double width) { set(look_.rimWidth, width); }
  QColor glowColor() const { return look_.glowColor; }
  void setGlowColor(const QColor& color) { set(look_.glowColor, color); }
  double glow() const { return look_.glow; }
  void setGlow(double glow) { set(look_.glow, glow); }

 signals:
  void shapeChanged();

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

 private:
  template <typename T>
  void set(T& member, const T& value) {
    if (member == value) return;
    member = value;
    emit shapeChanged();
    update();
  }

  NotchShapeNode::Look look_;
};

}  // namespace tindra
