// CalendarCompact: the featured meeting on the closed notch: its calendar's colour and title on
// the left ear, and on the right one the ear text: the minutes or hours to go, the start time,
// or "Now" in green once it has begun.
#pragma once

#include <QPointer>

#include "calendar/calendar_view_model.h"
#include "views/painted_compact.h"

namespace tindra {

class CalendarCompact final : public PaintedCompact {
  Q_OBJECT

 public:
  CalendarCompact(CalendarViewModel& model, const NotchAppearance& appearance,
                  QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

 private:
  QPointer<CalendarViewModel> model_;
};

}  // namespace tindra
