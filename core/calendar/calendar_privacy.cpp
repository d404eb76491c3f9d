#include "calendar/calendar_privacy.h"

namespace tindra {

CalendarEventInfo CalendarPrivacy::apply(CalendarEventInfo event) const {
  if (!isEnabled) return event;
  event.title = eventTitle;
  event.location.reset();
  event.coordinate.reset();
  return event;
}

TodayAgenda::Entry CalendarPrivacy::apply(TodayAgenda::Entry entry) const {
  entry.event = apply(std::move(entry.event));
  return entry;
}

std::string CalendarPrivacy::applyToReminderTitle(const std::string& title) const {
  return isEnabled ? reminderTitle : title;
}

}  // namespace tindra
