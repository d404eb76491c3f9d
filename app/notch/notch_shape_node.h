// NotchShapeNode: draws a NotchShape, its fill and its aura, straight into the window with the
// software scene graph's painter, so no image of the window's size is kept for it. It lives on
// the render thread: the item hands it a copy of what to draw (setLook) while the GUI thread
// waits in updatePaintNode, and render() reads only that copy.
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <QSGRenderNode>

#include "notch/notch_shape.h"

class QQuickWindow;

namespace tindra {

class NotchShapeNode : public QSGRenderNode {
 public:
  // What to draw, in the item's coordinates.
  struct Look {
    NotchShape shape;
    QColor color = Qt::black;
    QColor rimColor = Qt::transparent;  // a line just inside the sides and bottom
    double rimWidth = 0;                // none at 0
    QColor glowColor = Qt::white;
    double glow = 0;  // light along the inside of the outline; 0 none, 1 brightest
    bool operator==(const Look&) const = default;
  };

  explicit NotchShapeNode(QQuickWindow* window);

  // Takes what to draw next; the node is marked dirty only when it differs.
  void setLook(const Look& look);
  const Look& look() const { return look_; }
  // Paints the look with the painter's transform, clip and opacity as they are.
  void paint(QPainter& painter) const;

  void render(const RenderState* state) override;
  StateFlags changedStates() const override { return {}; }
  RenderingFlags flags() const override { return BoundedRectRendering; }
  // The outline's bounds widened by the widest stroke and a pixel of antialiasing.
  QRectF rect() const override { return bounds_; }

 private:
  void paintAura(QPainter& painter) const;

  QQuickWindow* window_;
  Look look_;
  QPainterPath path_;
  QRectF bounds_;
};

}  // namespace tindra
