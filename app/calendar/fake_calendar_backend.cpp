#include "calendar/fake_calendar_backend.h"

#include "calendar/meeting_link.h"

namespace tindra {

namespace {

CalendarEventInfo invented(std::string id, std::string title, double start, double minutes) {
  CalendarEventInfo info;
  info.id = "work:" + std::move(id);
  info.title = std::move(title);
  info.start = start;
  info.end = start + minutes * 60;
  info.calendarColor = CalendarEventInfo::Color{0.04, 0.52, 1.0};
  return info;
}

}  // namespace

FakeCalendarBackend::FakeCalendarBackend(double now, QObject* parent) : CalendarBackend(parent) {
  const double minute = 60;
  CalendarContents work;
  work.source = {QStringLiteral("work"),
                 QStringLiteral("Work"),
                 QStringLiteral("https://calendar.example.org/work.ics"),
                 CalendarEventInfo::Color{0.04, 0.52, 1.0},
                 {DiagnosticsLog::Outcome::ok, Sentence(QT_TR_NOOP("invented"), tr)},
                 false};
  CalendarEventInfo review = invented("review", "Design review", now + 8 * minute, 30);
  review.meetingLink = MeetingLink::fromURL("https://example.zoom.us/j/5551234567");
  CalendarEventInfo lunch = invented("lunch", "Lunch with Ada", now + 150 * minute, 60);
  lunch.location = "Café Nero, Storgata 5";
  CalendarEventInfo breakfast = invented("breakfast", "Breakfast with Sam", now - 120 * minute, 45);
  CalendarEventInfo sync = invented("sync", "Budget sync", now + 45 * minute, 30);
  sync.isDeclinedOrCancelled = true;
  CalendarEventInfo birthday = invented("birthday", "Ada's birthday", now - 3600, 24 * 60);
  birthday.isAllDay = true;
  work.events = {breakfast, review, sync, lunch, birthday};
  work.reminders = {{"work:slides", "Send the slides", now + 4 * 3600, false, false, {}},
                    {"work:room", "Book the room", std::nullopt, false, true, {}}};
  calendars_.push_back(std::move(work));
}

}  // namespace tindra
