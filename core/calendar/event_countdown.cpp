#include "calendar/event_countdown.h"

#include <cmath>

#include "calendar/whole_minutes.h"

namespace tindra {

EventCountdown countdown(const CalendarEventInfo& event, double now) {
  double untilStart = event.start - now;
  double untilEnd = event.end - now;
  if (untilStart > 0) return EventCountdown::startsIn(wholeMinutes(std::ceil(untilStart / 60)));
  if (untilEnd > 0) {
    return EventCountdown::underWay(wholeMinutes(std::floor(untilStart / -60)),
                                    wholeMinutes(std::ceil(untilEnd / 60)));
  }
  return EventCountdown::ended();
}

HoursAndMinutes hoursAndMinutes(std::int64_t minutes) {
  if (minutes < 0) minutes = 0;
  return {minutes / 60, minutes % 60};
}

}  // namespace tindra
