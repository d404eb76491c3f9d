// CalendarPrivacy: hides what an event is about while keeping when it is and how to join it.
// Enabled, titles become a placeholder and places are dropped; times, colour, meeting link and
// flags stay, so the countdown and the Join button still work.
#pragma once

#include <string>

#include "calendar/calendar_event_info.h"
#include "calendar/today_agenda.h"

namespace tindra {

struct CalendarPrivacy {
  bool isEnabled = false;
  std::string eventTitle = "Event";        // shown instead of an event's title
  std::string reminderTitle = "Reminder";  // shown instead of a reminder's title

  CalendarEventInfo apply(CalendarEventInfo event) const;
  TodayAgenda::Entry apply(TodayAgenda::Entry entry) const;
  // The title to show for a reminder whose title is `title`.
  std::string applyToReminderTitle(const std::string& title) const;

  friend bool operator==(const CalendarPrivacy&, const CalendarPrivacy&) = default;
};

}  // namespace tindra
