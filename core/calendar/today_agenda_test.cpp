#include "calendar/today_agenda.h"

#include <gtest/gtest.h>
#include <unicode/gregocal.h>
#include <unicode/timezone.h>

#include <memory>

#include "calendar/calendar_privacy.h"
#include "calendar/calendar_test_printers.h"

namespace tindra {
namespace {

// Oslo, where the clocks go forward on 29 March 2026 and back on 25 October 2026.
std::unique_ptr<icu::Calendar> osloCalendar() {
  UErrorCode status = U_ZERO_ERROR;
  auto calendar = std::make_unique<icu::GregorianCalendar>(
      icu::TimeZone::createTimeZone("Europe/Oslo"), icu::Locale("nb", "NO"), status);
  EXPECT_TRUE(U_SUCCESS(status));
  return calendar;
}

constexpr double march28At2300Z = 1774738800;    // midnight in Oslo, 29 March (CET)
constexpr double march29At2200Z = 1774821600;    // midnight in Oslo, 30 March (CEST)
constexpr double october24At2200Z = 1792879200;  // midnight in Oslo, 25 October (CEST)
constexpr double october25At2300Z = 1792969200;  // midnight in Oslo, 26 October (CET)

CalendarEventInfo timed(std::string id, double start, double end, std::string title = "Sync") {
  return {.id = std::move(id), .title = std::move(title), .start = start, .end = end};
}

std::vector<std::string> ids(const std::vector<TodayAgenda::Entry>& entries) {
  std::vector<std::string> result;
  for (const auto& entry : entries) result.push_back(entry.event.id);
  return result;
}

TEST(TodayAgendaTest, DaysFollowTheClockChanges) {
  auto oslo = osloCalendar();
  const double springNoon = march28At2300Z + 12 * 3600;
  const TodayAgenda::Interval spring = TodayAgenda::day(springNoon, *oslo);
  EXPECT_EQ(spring.start, march28At2300Z);
  EXPECT_EQ(spring.end, march29At2200Z);  // 23 hours
  const TodayAgenda::Interval autumn = TodayAgenda::day(october25At2300Z - 1, *oslo);
  EXPECT_EQ(autumn.start, october24At2200Z);
  EXPECT_EQ(autumn.end, october25At2300Z);  // 25 hours
  EXPECT_EQ(TodayAgenda::day(march29At2200Z, *oslo).start, march29At2200Z);

  // 23:30 on the long day is still today; 00:30 after the short day is not.
  const double autumnNoon = october24At2200Z + 14 * 3600;
  const auto lateOnLongDay = timed("late", october25At2300Z - 1800, october25At2300Z - 60);
  EXPECT_EQ(ids(TodayAgenda::entries(std::vector{lateOnLongDay}, autumnNoon, *oslo)),
            std::vector<std::string>{"late"});
  const auto afterShortDay = timed("next", march29At2200Z + 1800, march29At2200Z + 3600);
  EXPECT_TRUE(TodayAgenda::entries(std::vector{afterShortDay}, springNoon, *oslo).empty());
}

TEST(TodayAgendaTest, KeepsOverlappingEventsAndSortsThem) {
  auto oslo = osloCalendar();
  const double dayStart = october24At2200Z;
  const double now = dayStart + 10 * 3600;
  CalendarEventInfo allDayYesterday = timed("allDay", dayStart - 86400, dayStart + 1);
  allDayYesterday.isAllDay = true;
  CalendarEventInfo declined = timed("declined", now, now + 60);
  declined.isDeclinedOrCancelled = true;
  const std::vector<CalendarEventInfo> events{
      timed("endsAtMidnight", dayStart - 3600, dayStart),  // touches, does not overlap
      timed("startsAtMidnight", dayStart, dayStart + 60),
      timed("item10", now + 600, now + 1200, "Item 10"),
      timed("item9", now + 600, now + 1200, "item 9"),
      timed("running", now - 60, now + 60),
      declined,
      allDayYesterday,
      timed("sameStart", now, now + 1, "Sync"),
  };
  const auto entries = TodayAgenda::entries(events, now, *oslo);
  EXPECT_EQ(ids(entries), (std::vector<std::string>{"allDay", "startsAtMidnight", "running",
                                                    "sameStart", "item9", "item10"}));
  using S = TodayAgenda::Status;
  std::vector<S> statuses;
  for (const auto& entry : entries) statuses.push_back(entry.status);
  EXPECT_EQ(statuses,
            (std::vector<S>{S::upcoming, S::ended, S::now, S::now, S::upcoming, S::upcoming}));
}

TEST(CalendarPrivacyTest, HidesTitleAndPlaceButKeepsTimesAndLink) {
  CalendarEventInfo event = timed("a", 10, 20, "Dentist");
  event.location = "Storgata 1";
  event.coordinate = CalendarEventInfo::Coordinate{59.9, 10.7};
  event.meetingLink = MeetingLink{MeetingService::zoom, "https://zoom.us/j/1"};
  event.calendarColor = CalendarEventInfo::Color{1, 0, 0};

  const CalendarPrivacy off;
  EXPECT_EQ(off.apply(event), event);
  EXPECT_EQ(off.applyToReminderTitle("Buy milk"), "Buy milk");

  const CalendarPrivacy on{
      .isEnabled = true, .eventTitle = "Hendelse", .reminderTitle = "Påminnelse"};
  CalendarEventInfo expected = event;
  expected.title = "Hendelse";
  expected.location.reset();
  expected.coordinate.reset();
  EXPECT_EQ(on.apply(event), expected);
  EXPECT_EQ(on.apply(TodayAgenda::Entry{event, TodayAgenda::Status::now}),
            (TodayAgenda::Entry{expected, TodayAgenda::Status::now}));
  EXPECT_EQ(on.applyToReminderTitle("Buy milk"), "Påminnelse");
}

}  // namespace
}  // namespace tindra
