#include "notch/notch_shape_node.h"

#include <QPainter>
#include <QQuickWindow>
#include <algorithm>

namespace tindra {

namespace {

// The glow is this many strokes of growing width laid over each other, so that it is brightest
// at the edge and fades inwards over half the widest stroke.
constexpr int glowLayers = 6;
constexpr double glowLayerWidth = 3;
constexpr double glowLayerAlpha = 0.15;

bool hasRim(const NotchShapeNode::Look& look) {
  return look.rimWidth > 0 && look.rimColor.alpha() > 0;
}

}  // namespace

NotchShapeNode::NotchShapeNode(QQuickWindow* window)
    : window_(window), path_(look_.shape.path()), bounds_(path_.boundingRect()) {}

void NotchShapeNode::setLook(const Look& look) {
  if (look == look_) return;
  if (look.shape != look_.shape) path_ = look.shape.path();
  look_ = look;
  // The aura's strokes are clipped to the inside, but the bounds keep their width anyway, so a
  // stroke drawn a little differently can never leave a trail outside what is repainted.
  double widest = 0;
  if (look_.glow > 0) widest = glowLayers * glowLayerWidth;
  if (hasRim(look_)) widest = std::max(widest, 2 * look_.rimWidth);
  const double margin = widest / 2 + 1;
  bounds_ = path_.boundingRect().adjusted(-margin, -margin, margin, margin);
  markDirty(QSGNode::DirtyMaterial);
}

void NotchShapeNode::render(const RenderState* state) {
  auto* painter = static_cast<QPainter*>(
      window_->rendererInterface()->getResource(window_, QSGRendererInterface::PainterResource));
  if (!painter) return;
  // The renderer has clipped the painter to rect(); the software renderer hands the clip nodes
  // above (what clipList() holds for the hardware renderers) as one region in window coordinates.
  if (const QRegion* clip = state->clipRegion(); clip && !clip->isEmpty()) {
    painter->setClipRegion(*clip, Qt::IntersectClip);
  }
  painter->setTransform(matrix() ? matrix()->toTransform() : QTransform());
  painter->setOpacity(inheritedOpacity());
  paint(*painter);
}

void NotchShapeNode::paint(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(path_, look_.color);
  if (look_.glow > 0 || hasRim(look_)) paintAura(painter);
}

// Strokes centred on the outline, clipped to its inside. Along the display's top edge there is
// nothing to light, so that edge is left out.
void NotchShapeNode::paintAura(QPainter& painter) const {
  painter.save();
  painter.setClipPath(path_, Qt::IntersectClip);
  const QRectF outline = path_.boundingRect();
  const double below = look_.shape.body.top() + 1;
  painter.setClipRect(QRectF(outline.left() - 1, below, outline.width() + 2, outline.height() + 1),
                      Qt::IntersectClip);
  if (look_.glow > 0) {
    QColor layer = look_.glowColor;
    layer.setAlphaF(static_cast<float>(std::clamp(look_.glow, 0.0, 1.0) * glowLayerAlpha));
    for (int i = glowLayers; i > 0; --i) {
      painter.strokePath(path_, QPen(layer, i * glowLayerWidth));
    }
  }
  if (look_.rimWidth > 0) painter.strokePath(path_, QPen(look_.rimColor, 2 * look_.rimWidth));
  painter.restore();
}

}  // namespace tindra
