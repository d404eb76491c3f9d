// ReminderItem: one to-do from the user's calendars, for the reminders page: what it is, when it
// is due and whether it is done. Read only; Tindra never changes a reminder.
#pragma once

#include <optional>
#include <string>

#include "calendar/calendar_event_info.h"

namespace tindra {

struct ReminderItem {
  std::string id{};
  std::string title{};
  std::optional<double> due{};  // seconds since 1970; a date alone is due from its first moment
  bool dueIsDate = false;       // due on a day rather than at a time
  bool isDone = false;
  std::optional<CalendarEventInfo::Color> calendarColor{};

  friend bool operator==(const ReminderItem&, const ReminderItem&) = default;
};

}  // namespace tindra
