#include "notch/notch_shape_item.h"

#include <QPainter>
#include <QtQml>

namespace tindra {

NotchShapeItem::NotchShapeItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
}

void NotchShapeItem::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  painter->fillPath(shape_.path(), color_);
}

void NotchShapeItem::setBody(const QRectF& body) {
  if (body == shape_.body) return;
  shape_.body = body;
  changed();
}

void NotchShapeItem::setBottomRadius(double radius) {
  if (radius == shape_.bottomRadius) return;
  shape_.bottomRadius = radius;
  changed();
}

void NotchShapeItem::setFlareRadius(double radius) {
  if (radius == shape_.flareRadius) return;
  shape_.flareRadius = radius;
  changed();
}

void NotchShapeItem::setColor(const QColor& color) {
  if (color == color_) return;
  color_ = color;
  changed();
}

void NotchShapeItem::changed() {
  emit shapeChanged();
  update();
}

}  // namespace tindra
