// NotchShapeItem: paints a NotchShape in Qt Quick, as "NotchShape" in the "Tindra" QML module.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QQuickPaintedItem>

#include "notch/notch_shape.h"

namespace tindra {

class NotchShapeItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(NotchShape)
  Q_PROPERTY(QRectF body READ body WRITE setBody NOTIFY shapeChanged)
  Q_PROPERTY(double bottomRadius READ bottomRadius WRITE setBottomRadius NOTIFY shapeChanged)
  Q_PROPERTY(double flareRadius READ flareRadius WRITE setFlareRadius NOTIFY shapeChanged)
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY shapeChanged)
  // A line just inside the outline's sides and bottom; none at width 0.
  Q_PROPERTY(QColor rimColor MEMBER rimColor_ WRITE setRimColor NOTIFY shapeChanged)
  Q_PROPERTY(double rimWidth MEMBER rimWidth_ WRITE setRimWidth NOTIFY shapeChanged)
  // Light along the inside of the outline, fading inwards; 0 none, 1 brightest.
  Q_PROPERTY(QColor glowColor MEMBER glowColor_ WRITE setGlowColor NOTIFY shapeChanged)
  Q_PROPERTY(double glow MEMBER glow_ WRITE setGlow NOTIFY shapeChanged)

 public:
  explicit NotchShapeItem(QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

  QRectF body() const { return shape_.body; }
  void setBody(const QRectF& body) { set(shape_.body, body); }
  double bottomRadius() const { return shape_.bottomRadius; }
  void setBottomRadius(double radius) { set(shape_.bottomRadius, radius); }
  double flareRadius() const { return shape_.flareRadius; }
  void setFlareRadius(double radius) { set(shape_.flareRadius, radius); }
  QColor color() const { return color_; }
  void setColor(const QColor& color) { set(color_, color); }
  void setRimColor(const QColor& color) { set(rimColor_, color); }
  void setRimWidth(double width) { set(rimWidth_, width); }
  void setGlowColor(const QColor& color) { set(glowColor_, color); }
  void setGlow(double glow) { set(glow_, glow); }

 signals:
  void shapeChanged();

 private:
  void changed();
  template <typename T>
  void set(T& member, const T& value) {
    if (member == value) return;
    member = value;
    changed();
  }
  void paintAura(QPainter& painter, const QPainterPath& path) const;

  NotchShape shape_;
  QColor color_ = Qt::black;
  QColor rimColor_ = Qt::transparent;
  double rimWidth_ = 0;
  QColor glowColor_ = Qt::white;
  double glow_ = 0;
};

}  // namespace tindra
