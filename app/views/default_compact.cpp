#include "views/default_compact.h"

#include <QPainter>
#include <algorithm>

#include "views/notch_content.h"

namespace tindra {

DefaultCompact::DefaultCompact(const NotchContent& content, const NotchAppearance& appearance,
                               QQuickItem* parent)
    : PaintedCompact(appearance, parent), content_(content) {
  connect(&content_, &NotchContent::activityChanged, this, [this] { update(); });
}

void DefaultCompact::paint(QPainter* painter) {
  const QString label = content_.activityLabel();
  if (label.isEmpty()) return;
  const QColor accent = content_.activityAccent();
  const double dot = std::min(12.0, height() - 10);
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(accent);
  painter->drawEllipse(QRectF(16, (height() - dot) / 2, dot, dot));
  const int size = static_cast<int>(std::clamp(height() * 0.45, 9.0, 11.0));
  drawText(*painter, label, {.pixelSize = size, .color = accent}, -1, width() - 8, 80);
}

}  // namespace tindra
