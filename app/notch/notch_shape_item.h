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

 public:
  explicit NotchShapeItem(QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

  QRectF body() const { return shape_.body; }
  void setBody(const QRectF& body);
  double bottomRadius() const { return shape_.bottomRadius; }
  void setBottomRadius(double radius);
  double flareRadius() const { return shape_.flareRadius; }
  void setFlareRadius(double radius);
  QColor color() const { return color_; }
  void setColor(const QColor& color);

 signals:
  void shapeChanged();

 private:
  void changed();

  NotchShape shape_;
  QColor color_ = Qt::black;
};

}  // namespace tindra
