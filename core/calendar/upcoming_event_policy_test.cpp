#include "calendar/upcoming_event_policy.h"

#include <gtest/gtest.h>

#include <vector>

#include "calendar/calendar_test_printers.h"

namespace tindra {
namespace {

constexpr double t0 = 1'800'000'000;  // an arbitrary "now"
const MeetingLink zoomLink{MeetingService::zoom, "https://zoom.us/j/1"};

CalendarEventInfo event(std::string id, double start, double end) {
  return {.id = std::move(id), .title = "Sync", .start = start, .end = end};
}

TEST(UpcomingEventPolicyTest, LeadPeriodIncludesItsStartButNotTheEventStart) {
  const CalendarEventInfo e = event("a", t0 + 600, t0 + 1200);
  EXPECT_TRUE(UpcomingEventPolicy::isInLeadPeriod(e, t0, 600));
  EXPECT_FALSE(UpcomingEventPolicy::isInLeadPeriod(e, t0 - 0.001, 600));
  EXPECT_TRUE(UpcomingEventPolicy::isInLeadPeriod(e, t0 + 599.999, 600));
  EXPECT_FALSE(UpcomingEventPolicy::isInLeadPeriod(e, t0 + 600, 600));
  CalendarEventInfo allDay = e;
  allDay.isAllDay = true;
  CalendarEventInfo declined = e;
  declined.isDeclinedOrCancelled = true;
  EXPECT_FALSE(UpcomingEventPolicy::isInLeadPeriod(allDay, t0, 600));
  EXPECT_FALSE(UpcomingEventPolicy::isInLeadPeriod(declined, t0, 600));
}

TEST(UpcomingEventPolicyTest, NextWakeUpIsTheEarliestLeadStartStrictlyAhead) {
  CalendarEventInfo declined = event("d", t0 + 700, t0 + 800);
  declined.isDeclinedOrCancelled = true;
  std::vector<CalendarEventInfo> events{event("now", t0 + 600, t0 + 900), declined,
                                        event("late", t0 + 2000, t0 + 3000),
                                        event("soon", t0 + 1000, t0 + 3000)};
  EXPECT_EQ(UpcomingEventPolicy::nextLeadPeriodStart(events, t0, 600), t0 + 400);
  EXPECT_EQ(UpcomingEventPolicy::nextLeadPeriodStart(events, t0 + 1400, 600), std::nullopt);
}

TEST(UpcomingEventPolicyTest, NextEventBreaksTiesByLinkThenIdThenInputOrder) {
  CalendarEventInfo withLink = event("z", t0 + 60, t0 + 600);
  withLink.meetingLink = zoomLink;
  const CalendarEventInfo plainLowId = event("a", t0 + 60, t0 + 600);
  EXPECT_EQ(UpcomingEventPolicy::nextEvent(std::vector{plainLowId, withLink}, t0)->id, "z");

  CalendarEventInfo otherLink = event("b", t0 + 60, t0 + 600);
  otherLink.meetingLink = MeetingLink{MeetingService::webex, "https://webex.com/meet/x"};
  EXPECT_EQ(UpcomingEventPolicy::nextEvent(std::vector{withLink, otherLink}, t0)->id, "b");
  // Ids compare by code point: "B" (0x42) before "a" (0x61).
  EXPECT_EQ(
      UpcomingEventPolicy::nextEvent(std::vector{plainLowId, event("B", t0 + 60, t0 + 600)}, t0)
          ->id,
      "B");

  CalendarEventInfo twin = plainLowId;
  twin.title = "Twin";
  EXPECT_EQ(UpcomingEventPolicy::nextEvent(std::vector{plainLowId, twin}, t0)->title, "Sync");
  EXPECT_EQ(UpcomingEventPolicy::nextEvent(std::vector{twin, plainLowId}, t0)->title, "Twin");
  // An earlier start beats a link.
  EXPECT_EQ(
      UpcomingEventPolicy::nextEvent(std::vector{withLink, event("y", t0 + 59, t0 + 600)}, t0)->id,
      "y");
}

TEST(UpcomingEventPolicyTest, NextEventKeepsEventsUnderWayUntilTheirEnd) {
  std::vector<CalendarEventInfo> events{event("running", t0 - 600, t0 + 1),
                                        event("later", t0 + 60, t0 + 600)};
  EXPECT_EQ(UpcomingEventPolicy::nextEvent(events, t0)->id, "running");
  EXPECT_EQ(UpcomingEventPolicy::nextEvent(events, t0 + 1)->id, "later");
  EXPECT_EQ(UpcomingEventPolicy::nextEvent(events, t0 + 600), std::nullopt);
}

TEST(UpcomingEventPolicyTest, FeaturedWindowClosesAtTheEndOfShortMeetings) {
  const UpcomingEventPolicy policy{.leadTime = 600, .lingerAfterStart = 1800};
  const std::vector<CalendarEventInfo> short20{event("short", t0, t0 + 1200)};
  EXPECT_EQ(policy.featured(short20, t0 - 600)->phase, FeaturedEvent::Phase::startsIn(600));
  EXPECT_EQ(policy.featured(short20, t0 - 600.5), std::nullopt);
  EXPECT_EQ(policy.featured(short20, t0)->phase, FeaturedEvent::Phase::started(0));
  EXPECT_EQ(policy.featured(short20, t0 + 1199)->phase, FeaturedEvent::Phase::started(1199));
  EXPECT_EQ(policy.featured(short20, t0 + 1200), std::nullopt);

  // Zero-length and inverted events linger the full time.
  for (double end : {t0, t0 - 60}) {
    const std::vector<CalendarEventInfo> instant{event("instant", t0, end)};
    EXPECT_EQ(policy.featured(instant, t0 + 1799)->phase, FeaturedEvent::Phase::started(1799));
    EXPECT_EQ(policy.featured(instant, t0 + 1800), std::nullopt);
  }
  // A long meeting stops at start + linger.
  const std::vector<CalendarEventInfo> longOne{event("long", t0, t0 + 7200)};
  EXPECT_EQ(policy.featured(longOne, t0 + 1800), std::nullopt);
}

TEST(UpcomingEventPolicyTest, OpeningEarlyOnlyEverWidensTheWindow) {
  const UpcomingEventPolicy policy{.leadTime = 600, .lingerAfterStart = 300};
  const std::vector<CalendarEventInfo> events{event("a", t0 + 3600, t0 + 7200)};
  EXPECT_EQ(policy.featured(events, t0), std::nullopt);
  EXPECT_EQ(policy.featured(events, t0, {{"a", t0}})->phase, FeaturedEvent::Phase::startsIn(3600));
  EXPECT_EQ(policy.featured(events, t0, {{"other", t0}}), std::nullopt);
  // A date later than the lead start does not shorten the window.
  EXPECT_TRUE(policy.featured(events, t0 + 3000, {{"a", t0 + 3500}}).has_value());
}

TEST(UpcomingEventPolicyTest, FeaturedPicksTheLeastCandidate) {
  const UpcomingEventPolicy policy{.leadTime = 600, .lingerAfterStart = 300};
  CalendarEventInfo linked = event("b", t0 + 120, t0 + 900);
  linked.meetingLink = zoomLink;
  CalendarEventInfo allDay = event("0", t0 - 3600, t0 + 80000);
  allDay.isAllDay = true;
  const std::vector<CalendarEventInfo> events{allDay, event("a", t0 + 120, t0 + 900), linked,
                                              event("c", t0 + 500, t0 + 900)};
  EXPECT_EQ(policy.featured(events, t0)->event.id, "b");
  EXPECT_EQ(policy.featured(events, t0 + 420)->event.id, "c");  // a and b have lingered out
}

TEST(UpcomingEventPolicyTest, ActivityDurationRunsToTheClosingDate) {
  const UpcomingEventPolicy policy{.leadTime = 600, .lingerAfterStart = 300};
  const CalendarEventInfo e = event("a", t0, t0 + 3600);
  EXPECT_DOUBLE_EQ(policy.activityDuration({e, FeaturedEvent::Phase::startsIn(120)}), 420);
  EXPECT_DOUBLE_EQ(policy.activityDuration({e, FeaturedEvent::Phase::started(100)}), 200);
  const CalendarEventInfo brief = event("b", t0, t0 + 60);
  EXPECT_DOUBLE_EQ(policy.activityDuration({brief, FeaturedEvent::Phase::started(10)}), 50);
}

}  // namespace
}  // namespace tindra
