#include "icalendar/icalendar_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace tindra {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;

double utc(int year, unsigned month, unsigned day, int hour = 0, int minute = 0) {
  using namespace std::chrono;
  const sys_days date{std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day)};
  return static_cast<double>(duration_cast<seconds>(date.time_since_epoch()).count()) +
         hour * 3600.0 + minute * 60.0;
}

std::string calendar(const std::string& body) {
  return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Tindra tests//EN\r\n" + body +
         "END:VCALENDAR\r\n";
}

ICalendarReadOptions autumn(std::string timeZone = "America/New_York") {
  ICalendarReadOptions options;
  options.windowStart = utc(2026, 10, 1);
  options.windowEnd = utc(2026, 12, 1);
  options.timeZone = std::move(timeZone);
  options.idPrefix = "work";
  options.ownerAddresses = {"me@example.org"};
  return options;
}

ICalendarDocument read(const std::string& text, const ICalendarReadOptions& options = autumn()) {
  auto document = ICalendarReader::read(text, options);
  EXPECT_TRUE(document.has_value()) << describe(document.error());
  return document.value_or(ICalendarDocument{});
}

const CalendarEventInfo* withID(const ICalendarDocument& document, const std::string& id) {
  const auto found = std::ranges::find(document.events, id, &CalendarEventInfo::id);
  return found == document.events.end() ? nullptr : &*found;
}

// A weekly meeting at nine in Oslo that lives through the end of summer time: one week moved,
// one left out and one cancelled.
const std::string weekly = calendar(
    "BEGIN:VEVENT\r\nUID:standup\r\nSUMMARY:Standup\r\n"
    "DTSTART;TZID=Europe/Oslo:20261019T090000\r\nDTEND;TZID=Europe/Oslo:20261019T091500\r\n"
    "RRULE:FREQ=WEEKLY;BYDAY=MO;UNTIL=20261123T235959Z\r\n"
    "EXDATE;TZID=Europe/Oslo:20261102T090000\r\n"
    "DESCRIPTION:Join: https://example.zoom.us/j/123456789\r\nEND:VEVENT\r\n"
    "BEGIN:VEVENT\r\nUID:standup\r\nRECURRENCE-ID;TZID=Europe/Oslo:20261109T090000\r\n"
    "SUMMARY:Standup (moved)\r\n"
    "DTSTART;TZID=Europe/Oslo:20261109T110000\r\nDTEND;TZID=Europe/Oslo:20261109T111500\r\n"
    "END:VEVENT\r\n"
    "BEGIN:VEVENT\r\nUID:standup\r\nRECURRENCE-ID;TZID=Europe/Oslo:20261116T090000\r\n"
    "SUMMARY:Standup\r\nSTATUS:CANCELLED\r\n"
    "DTSTART;TZID=Europe/Oslo:20261116T090000\r\nDTEND;TZID=Europe/Oslo:20261116T091500\r\n"
    "END:VEVENT\r\n");

TEST(ICalendarReaderTest, ExpandsARecurrenceAcrossTheClockChangeWithItsEditsAndExclusions) {
  ICalendarDocument document = read(weekly);
  std::ranges::sort(document.events, {}, &CalendarEventInfo::start);
  // Nine in Oslo is 07:00 UTC in summer time and 08:00 after it ends on 25 October.
  EXPECT_THAT(document.events, ElementsAre(Field(&CalendarEventInfo::start, utc(2026, 10, 19, 7)),
                                           Field(&CalendarEventInfo::start, utc(2026, 10, 26, 8)),
                                           Field(&CalendarEventInfo::start, utc(2026, 11, 9, 10)),
                                           Field(&CalendarEventInfo::start, utc(2026, 11, 16, 8)),
                                           Field(&CalendarEventInfo::start, utc(2026, 11, 23, 8))));
  const CalendarEventInfo& moved = document.events[2];
  EXPECT_EQ(moved.title, "Standup (moved)");
  EXPECT_EQ(moved.id, "work:standup@" + std::to_string(static_cast<long long>(utc(2026, 11, 9, 8))))
      << "an edited occurrence keeps the id of the one it replaces";
  EXPECT_EQ(moved.end - moved.start, 900);
  EXPECT_TRUE(document.events[3].isDeclinedOrCancelled);
  EXPECT_FALSE(document.events[4].isDeclinedOrCancelled);
  ASSERT_TRUE(document.events[0].meetingLink);
  EXPECT_EQ(document.events[0].meetingLink->service, MeetingService::zoom);
}

TEST(ICalendarReaderTest, ResolvesTheZonesADocumentNames) {
  // The document's own VTIMEZONE under a made-up name, and a Windows zone name as Outlook
  // writes it without one.
  const std::string text = calendar(
      "BEGIN:VTIMEZONE\r\nTZID:Office Time\r\n"
      "BEGIN:STANDARD\r\nDTSTART:19701025T030000\r\nRRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU\r\n"
      "TZOFFSETFROM:+0200\r\nTZOFFSETTO:+0100\r\nEND:STANDARD\r\n"
      "BEGIN:DAYLIGHT\r\nDTSTART:19700329T020000\r\nRRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU\r\n"
      "TZOFFSETFROM:+0100\r\nTZOFFSETTO:+0200\r\nEND:DAYLIGHT\r\nEND:VTIMEZONE\r\n"
      "BEGIN:VEVENT\r\nUID:own\r\nDTSTART;TZID=Office Time:20261020T100000\r\n"
      "DURATION:PT1H\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:outlook\r\nDTSTART;TZID=W. Europe Standard Time:20261027T100000\r\n"
      "DTEND;TZID=W. Europe Standard Time:20261027T103000\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:floating\r\nDTSTART:20261026T140000\r\nDTEND:20261026T150000\r\n"
      "END:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:utc\r\nDTSTART:20261026T140000Z\r\nEND:VEVENT\r\n");
  const ICalendarDocument document = read(text);
  ASSERT_EQ(document.events.size(), 4U);
  EXPECT_EQ(withID(document, "work:own")->start, utc(2026, 10, 20, 8));
  EXPECT_EQ(withID(document, "work:own")->end, utc(2026, 10, 20, 9));
  EXPECT_EQ(withID(document, "work:outlook")->start, utc(2026, 10, 27, 9));
  // Floating times are the user's wall clock: 14:00 in New York in summer time.
  EXPECT_EQ(withID(document, "work:floating")->start, utc(2026, 10, 26, 18));
  EXPECT_EQ(withID(document, "work:utc")->start, utc(2026, 10, 26, 14));
  EXPECT_EQ(withID(document, "work:utc")->end, utc(2026, 10, 26, 14));
}

TEST(ICalendarReaderTest, AllDayEventsCoverTheUsersDayEvenWhenTheClocksChange) {
  const std::string text = calendar(
      "BEGIN:VEVENT\r\nUID:holiday\r\nDTSTART;VALUE=DATE:20261101\r\nDTEND;VALUE=DATE:20261102\r\n"
      "SUMMARY:Day off\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:birthday\r\nDTSTART;VALUE=DATE:20261010\r\nRRULE:FREQ=YEARLY\r\n"
      "END:VEVENT\r\n");
  const ICalendarDocument document = read(text);
  const CalendarEventInfo* holiday = withID(document, "work:holiday");
  ASSERT_NE(holiday, nullptr);
  EXPECT_TRUE(holiday->isAllDay);
  // New York leaves summer time on 1 November 2026: that day has 25 hours.
  EXPECT_EQ(holiday->start, utc(2026, 11, 1, 4));
  EXPECT_EQ(holiday->end, utc(2026, 11, 2, 5));
  // A yearly date from its first year on, without an end: one day long.
  const std::string birthday =
      "work:birthday@" + std::to_string(static_cast<long long>(utc(2026, 10, 10, 4)));
  ASSERT_NE(withID(document, birthday), nullptr);
  EXPECT_EQ(withID(document, birthday)->end, utc(2026, 10, 11, 4));
}

TEST(ICalendarReaderTest, FlagsInvitationsTheUserDeclinedAndReadsToDos) {
  const std::string text = calendar(
      "BEGIN:VEVENT\r\nUID:review\r\nDTSTART:20261026T150000Z\r\nDTEND:20261026T160000Z\r\n"
      "ATTENDEE;PARTSTAT=ACCEPTED:mailto:boss@example.org\r\n"
      "ATTENDEE;PARTSTAT=DECLINED;CN=Me:MAILTO:Me@Example.org\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:party\r\nDTSTART:20261026T170000Z\r\n"
      "ATTENDEE;PARTSTAT=DECLINED:mailto:someone@example.org\r\n"
      "LOCATION:Room 4\r\nGEO:59.91;10.75\r\nEND:VEVENT\r\n"
      "BEGIN:VTODO\r\nUID:report\r\nSUMMARY:Send the report\r\nDUE;VALUE=DATE:20261027\r\n"
      "END:VTODO\r\n"
      "BEGIN:VTODO\r\nUID:slides\r\nSUMMARY:Slides\r\nSTATUS:COMPLETED\r\nEND:VTODO\r\n"
      "BEGIN:VTODO\r\nUID:dropped\r\nSUMMARY:Dropped\r\nSTATUS:CANCELLED\r\nEND:VTODO\r\n");
  const ICalendarDocument document = read(text);
  EXPECT_TRUE(withID(document, "work:review")->isDeclinedOrCancelled);
  const CalendarEventInfo* party = withID(document, "work:party");
  EXPECT_FALSE(party->isDeclinedOrCancelled) << "someone else declined";
  EXPECT_EQ(party->location, "Room 4");
  ASSERT_TRUE(party->coordinate);
  EXPECT_DOUBLE_EQ(party->coordinate->latitude, 59.91);
  ASSERT_EQ(document.reminders.size(), 2U);
  EXPECT_EQ(document.reminders[0].title, "Send the report");
  EXPECT_EQ(document.reminders[0].due, utc(2026, 10, 27, 4));
  EXPECT_TRUE(document.reminders[0].dueIsDate);
  EXPECT_FALSE(document.reminders[0].isDone);
  EXPECT_TRUE(document.reminders[1].isDone);
  EXPECT_FALSE(document.reminders[1].due);
}

TEST(ICalendarReaderTest, ReadsTheCalendarsOwnNameColourAndRefreshInterval) {
  const ICalendarDocument document =
      read(calendar("X-WR-CALNAME:Team\r\nX-APPLE-CALENDAR-COLOR:#FF8000\r\n"
                    "X-PUBLISHED-TTL:PT1H\r\n"));
  EXPECT_EQ(document.name, "Team");
  ASSERT_TRUE(document.color);
  EXPECT_EQ(*document.color, (CalendarEventInfo::Color{1.0, 128 / 255.0, 0.0}));
  EXPECT_EQ(document.refreshInterval, 3600);
}

TEST(ICalendarReaderTest, RefusesWhatIsNotAWholeCalendar) {
  const auto error = [](std::string_view text) {
    auto document = ICalendarReader::read(text, autumn());
    return document ? std::optional<ICalendarError>() : document.error();
  };
  EXPECT_EQ(error("<html><body>Sign in</body></html>"), ICalendarError::notICalendar);
  EXPECT_EQ(error(""), ICalendarError::notICalendar);
  EXPECT_EQ(error(weekly.substr(0, weekly.size() / 2)), ICalendarError::truncated);
  EXPECT_EQ(error(weekly.substr(0, weekly.size() - 4)), ICalendarError::truncated);
  std::string huge = weekly;
  huge.insert(huge.find("END:VCALENDAR"),
              std::string(ICalendarReader::maxDocumentBytes - weekly.size() + 1, '\n'));
  EXPECT_EQ(error(huge), ICalendarError::tooLarge);
  huge.erase(huge.find('\n', 200), 1);
  EXPECT_EQ(error(huge), std::nullopt) << "exactly the limit is read";
  // A misspelt closing line is a broken document, not one that was cut short.
  std::string misspelt = weekly;
  misspelt.replace(misspelt.rfind("END:VCALENDAR"), 13, "END:VCALENDR");
  EXPECT_EQ(error(misspelt), ICalendarError::malformed);
  EXPECT_EQ(error(weekly.substr(0, weekly.rfind("END:VCALENDAR"))), ICalendarError::truncated)
      << "cut right after the last event";
}

TEST(ICalendarReaderTest, ReadsACompleteCalendarFollowedByStrayLines) {
  // A caching proxy's note after the calendar, and two calendars in one file with one after them.
  const ICalendarDocument proxied = read(weekly + "<!-- served from cache by proxy-7 -->\r\n");
  EXPECT_EQ(proxied.events.size(), 5U);
  const std::string second =
      calendar("BEGIN:VEVENT\r\nUID:other\r\nDTSTART:20261026T090000Z\r\nEND:VEVENT\r\n");
  const ICalendarDocument both = read(weekly + second + "END:VEVENT\r\nBEGIN:VEVENT\r\n");
  EXPECT_EQ(both.events.size(), 6U);
  EXPECT_NE(withID(both, "work:other"), nullptr);
}

TEST(ICalendarReaderTest, ReadsOtherEncodingsAsText) {
  // "Møte" in Windows-1252, and the same document in UTF-16 with its byte-order mark.
  const std::string latin = calendar(
      "BEGIN:VEVENT\r\nUID:m\r\nSUMMARY:M\xF8te\r\nDTSTART:20261026T090000Z\r\nEND:VEVENT\r\n");
  EXPECT_EQ(read(latin).events.at(0).title, "M\xC3\xB8te");
  const std::string utf8 =
      "\xEF\xBB\xBF" + calendar(
                           "BEGIN:VEVENT\r\nUID:m\r\nSUMMARY:M\xC3\xB8te\r\nDTSTART:"
                           "20261026T090000Z\r\nEND:VEVENT\r\n");
  EXPECT_EQ(read(utf8).events.at(0).title, "M\xC3\xB8te");
  std::string utf16 = "\xFF\xFE";
  for (std::size_t i = 3; i < utf8.size(); ++i) {
    if (static_cast<unsigned char>(utf8[i]) >= 0x80) {
      utf16 += "\xF8";  // the only non-ASCII letter here, U+00F8, as one UTF-16 unit
      ++i;
    } else {
      utf16 += utf8[i];
    }
    utf16 += '\0';
  }
  EXPECT_EQ(read(utf16).events.at(0).title, "M\xC3\xB8te");
}

ICalendarReadOptions dayFrom(double start) {
  ICalendarReadOptions options = autumn("UTC");
  options.windowStart = start;
  options.windowEnd = start + 86400;
  return options;
}

std::vector<std::pair<double, double>> spans(ICalendarDocument document) {
  std::ranges::sort(document.events, {}, &CalendarEventInfo::start);
  std::vector<std::pair<double, double>> found;
  for (const CalendarEventInfo& event : document.events) found.emplace_back(event.start, event.end);
  return found;
}

TEST(ICalendarReaderTest, ExtraDatesKeepTheFirstOccurrenceAndTheirOwnPeriods) {
  const std::string text = calendar(
      "BEGIN:VEVENT\r\nUID:extra\r\nDTSTART:20250101T100000Z\r\nDTEND:20250101T110000Z\r\n"
      "RDATE:20250102T100000Z\r\n"
      "RDATE;VALUE=PERIOD:20250105T100000Z/PT3H,20250106T100000Z/20250106T120000Z\r\n"
      "END:VEVENT\r\n");
  ICalendarReadOptions options = autumn("UTC");
  options.windowStart = utc(2025, 1, 1);
  options.windowEnd = utc(2025, 1, 8);
  using Span = std::pair<double, double>;
  EXPECT_THAT(spans(read(text, options)),
              ElementsAre(Span{utc(2025, 1, 1, 10), utc(2025, 1, 1, 11)},
                          Span{utc(2025, 1, 2, 10), utc(2025, 1, 2, 11)},
                          Span{utc(2025, 1, 5, 10), utc(2025, 1, 5, 13)},
                          Span{utc(2025, 1, 6, 10), utc(2025, 1, 6, 12)}));
  // Excluding the first occurrence still works.
  std::string excluded = text;
  excluded.insert(excluded.find("END:VEVENT"), "EXDATE:20250101T100000Z\r\n");
  EXPECT_EQ(spans(read(excluded, options)).size(), 3U);
}

TEST(ICalendarReaderTest, SeriesInZonesAwayFromUTCKeepTheWindowsFirstHours) {
  // Daily series that began years before the window: half past two in Tokyo is 05:00 UTC, and
  // eight in the evening in Los Angeles in summer time is 03:00 UTC the next day.
  const std::string text = calendar(
      "BEGIN:VEVENT\r\nUID:tokyo\r\nDTSTART;TZID=Asia/Tokyo:20161028T140000\r\n"
      "DTEND;TZID=Asia/Tokyo:20161028T143000\r\nRRULE:FREQ=DAILY\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:la\r\nDTSTART;TZID=America/Los_Angeles:20161028T200000\r\n"
      "DTEND;TZID=America/Los_Angeles:20161028T203000\r\nRRULE:FREQ=DAILY\r\nEND:VEVENT\r\n");
  using Span = std::pair<double, double>;
  EXPECT_THAT(spans(read(text, dayFrom(utc(2019, 7, 25)))),
              ElementsAre(Span{utc(2019, 7, 25, 3), utc(2019, 7, 25, 3, 30)},
                          Span{utc(2019, 7, 25, 5), utc(2019, 7, 25, 5, 30)}));
  // A window opening inside an occurrence keeps it.
  EXPECT_THAT(spans(read(text, dayFrom(utc(2019, 7, 25, 5, 15)))),
              ElementsAre(Span{utc(2019, 7, 25, 5), utc(2019, 7, 25, 5, 30)},
                          Span{utc(2019, 7, 26, 3), utc(2019, 7, 26, 3, 30)},
                          Span{utc(2019, 7, 26, 5), utc(2019, 7, 26, 5, 30)}));
}

TEST(ICalendarReaderTest, CapsRulesThatNeverEnd) {
  // Every second since 2000 without an end, and the same with a count no one could reach.
  const std::string text = calendar(
      "BEGIN:VEVENT\r\nUID:forever\r\nDTSTART:20000101T000000Z\r\nRRULE:FREQ=SECONDLY\r\n"
      "END:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:counted\r\nDTSTART:20000101T000000Z\r\n"
      "RRULE:FREQ=SECONDLY;COUNT=2000000000\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:plain\r\nDTSTART:20261026T090000Z\r\nEND:VEVENT\r\n");
  const ICalendarDocument document = read(text);
  EXPECT_TRUE(document.expansionCapped);
  const auto forever = std::ranges::count_if(
      document.events, [](const auto& event) { return event.id.starts_with("work:forever@"); });
  EXPECT_EQ(forever, static_cast<long>(ICalendarReader::maxOccurrencesPerEvent));
  EXPECT_EQ(
      withID(document, "work:forever@" + std::to_string(static_cast<long long>(utc(2026, 10, 1))))
          ->start,
      utc(2026, 10, 1))
      << "expansion starts at the window, not in 2000";
  EXPECT_NE(withID(document, "work:plain"), nullptr) << "the rest of the document is read";
}

TEST(ICalendarReaderTest, EndsMistypedCenturiesAwayAreReadWithoutWorkingOutTheZoneUpToThem) {
  // A day off to the year 9999, and a meeting in Oslo that ends then: the first is cut to ten
  // years, the second ends on UTC's clock. Working out Oslo's clock changes up to the year
  // first, as libical would, took minutes and kept megabytes for a year like 620210, which
  // libical reads out of a garbled line.
  const std::string text = calendar(
      "BEGIN:VEVENT\r\nUID:off\r\nDTSTART;VALUE=DATE:20261101\r\n"
      "DTEND;VALUE=DATE:99991231\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:long\r\nDTSTART;TZID=Europe/Oslo:20261026T090000\r\n"
      "DTEND;TZID=Europe/Oslo:99991231T000000\r\nEND:VEVENT\r\n");
  const ICalendarDocument document = read(text);
  const CalendarEventInfo* off = withID(document, "work:off");
  ASSERT_NE(off, nullptr);
  EXPECT_NEAR(off->end - off->start, 3660 * 86400.0, 3600);
  const CalendarEventInfo* meeting = withID(document, "work:long");
  ASSERT_NE(meeting, nullptr);
  EXPECT_EQ(meeting->start, utc(2026, 10, 26, 8));
  EXPECT_EQ(meeting->end, utc(9999, 12, 31));
}

}  // namespace
}  // namespace tindra
