#include "notch/notch_shape.h"

#include <algorithm>

namespace tindra {

QPainterPath NotchShape::path() const {
  const double w = body.width();
  const double h = body.height();
  const double r = std::clamp(bottomRadius, 0.0, std::min(w / 2, h / 2));
  const double f = std::clamp(flareRadius, 0.0, h - r);
  const double left = body.left();
  const double right = body.right();
  const double top = body.top();
  const double bottom = body.bottom();

  QPainterPath path;
  path.moveTo(left - f, top);
  path.lineTo(right + f, top);
  // Concave flare on the right: bends from the top edge down into the body's side.
  path.quadTo(right, top, right, top + f);
  path.lineTo(right, bottom - r);
  path.quadTo(right, bottom, right - r, bottom);
  path.lineTo(left + r, bottom);
  path.quadTo(left, bottom, left, bottom - r);
  path.lineTo(left, top + f);
  path.quadTo(left, top, left - f, top);
  path.closeSubpath();
  return path;
}

QRegion NotchShape::region() const {
  return QRegion(path().toFillPolygon().toPolygon());
}

}  // namespace tindra
