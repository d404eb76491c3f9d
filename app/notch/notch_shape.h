// NotchShape: the outline of the notch, a body hanging from the top edge with rounded bottom
// corners and small concave flares where it meets the top edge. The window paints it and cuts
// its input and bounding mask from the same outline, so what is seen is what is hit.
#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QRegion>

namespace tindra {

struct NotchShape {
  QRectF body;              // top edge on the window's top edge
  double bottomRadius = 8;  // limited to what the body can hold
  double flareRadius = 6;   // the flares reach this far beyond the body on both sides

  QPainterPath path() const;
  // The outline as whole pixels, for the window mask.
  QRegion region() const;
  bool contains(const QPointF& point) const { return path().contains(point); }
  bool operator==(const NotchShape&) const = default;
};

}  // namespace tindra
