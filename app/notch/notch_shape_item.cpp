#include "notch/notch_shape_item.h"

#include <QPainter>
#include <QtQml>
#include <algorithm>

namespace tindra {

NotchShapeItem::NotchShapeItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
}

namespace {

// The glow is this many strokes of growing width laid over each other, so that it is brightest
// at the edge and fades inwards over half the widest stroke.
constexpr int glowLayers = 6;
constexpr double glowLayerWidth = 3;
constexpr double glowLayerAlpha = 0.15;

}  // namespace

void NotchShapeItem::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  const QPainterPath path = shape_.path();
  painter->fillPath(path, color_);
  if (glow_ > 0 || (rimWidth_ > 0 && rimColor_.alpha() > 0)) paintAura(*painter, path);
}

// Strokes centred on the outline, clipped to its inside. Along the display's top edge there is
// nothing to light, so that edge is left out.
void NotchShapeItem::paintAura(QPainter& painter, const QPainterPath& path) const {
  painter.save();
  painter.setClipPath(path);
  painter.setClipRect(QRectF(0, shape_.body.top() + 1, width(), height()), Qt::IntersectClip);
  if (glow_ > 0) {
    QColor layer = glowColor_;
    layer.setAlphaF(static_cast<float>(std::clamp(glow_, 0.0, 1.0) * glowLayerAlpha));
    for (int i = glowLayers; i > 0; --i) {
      painter.strokePath(path, QPen(layer, i * glowLayerWidth));
    }
  }
  if (rimWidth_ > 0) painter.strokePath(path, QPen(rimColor_, 2 * rimWidth_));
  painter.restore();
}

void NotchShapeItem::changed() {
  emit shapeChanged();
  update();
}

}  // namespace tindra
