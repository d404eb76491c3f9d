#include "calendar/calendar_compact.h"

#include <QPainter>

namespace tindra {

CalendarCompact::CalendarCompact(CalendarViewModel& model, const NotchAppearance& appearance,
                                 QQuickItem* parent)
    : PaintedCompact(appearance, parent), model_(&model) {
  connect(model_, &CalendarViewModel::changed, this, [this] { update(); });
}

void CalendarCompact::paint(QPainter* painter) {
  if (!model_) return;
  const CalendarViewModel::State& state = model_->state();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(state.color.isValid() ? state.color : QColor(0x0a, 0x84, 0xff));
  painter->drawRoundedRect(QRectF(12, (height() - 14) / 2, 4, 14), 2, 2);
  drawText(*painter, state.title, {.pixelSize = 11}, 12 + 4 + 6, -1, 64);
  const QColor ear = state.started ? QColor(0x30, 0xd1, 0x58) : QColor(Qt::white);
  drawText(*painter, state.earText, {.pixelSize = 12, .color = ear}, -1, width() - 14);
}

}  // namespace tindra
