#include "calendar/event_time_format.h"

#include <cmath>

#include "calendar/whole_minutes.h"

namespace tindra {

EarText earText(double interval) {
  std::int64_t minutes = wholeMinutes(std::ceil(interval / 60));
  if (minutes < 60) return EarText::minutes(minutes);
  return EarText::hours(minutes / 60);
}

EarText earText(const CalendarEventInfo& event, double now, EventTimeFormat format) {
  double untilStart = event.start - now;
  if (untilStart <= 0) return EarText::now();
  if (format == EventTimeFormat::startTime) return EarText::startTime(event.start);
  return earText(untilStart);
}

}  // namespace tindra
