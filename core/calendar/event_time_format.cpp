#include "calendar/event_time_format.h"

#include <cmath>

#include "calendar/whole_minutes.h"

namespace tindra {

namespace {
constexpr std::array<std::string_view, allEventTimeFormats.size()> rawValues{"countdown",
                                                                             "startTime", "both"};
}

std::string_view rawValue(EventTimeFormat format) {
  return rawValues[static_cast<std::size_t>(format)];
}

std::optional<EventTimeFormat> eventTimeFormatFromRaw(std::string_view raw) {
  for (EventTimeFormat format : allEventTimeFormats) {
    if (rawValue(format) == raw) return format;
  }
  return std::nullopt;
}

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
