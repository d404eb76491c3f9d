#include "views/painted_compact.h"

#include <QFontMetricsF>
#include <QPainter>

#include "views/notch_appearance.h"

namespace tindra {

PaintedCompact::PaintedCompact(const NotchAppearance& appearance, QQuickItem* parent)
    : QQuickPaintedItem(parent), appearance_(appearance) {
  setAntialiasing(true);
  connect(&appearance_, &NotchAppearance::changed, this, [this] { update(); });
}

double PaintedCompact::drawText(QPainter& painter, const QString& text, const TextStyle& style,
                                double left, double right, double maxWidth) const {
  QFont font = painter.font();
  font.setPixelSize(style.pixelSize);
  font.setWeight(style.weight);
  const QFontMetricsF metrics(font);
  const QString shown = metrics.elidedText(text, Qt::ElideRight, maxWidth);
  const double width = metrics.horizontalAdvance(shown);
  const double x = left >= 0 ? left : right - width;
  painter.setFont(font);
  painter.setPen(style.color);
  painter.drawText(QRectF(x, 0, width + 1, height()), Qt::AlignLeft | Qt::AlignVCenter, shown);
  return width;
}

}  // namespace tindra
