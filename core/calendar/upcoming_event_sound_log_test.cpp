#include "calendar/upcoming_event_sound_log.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tindra {
namespace {

constexpr double t0 = 1'800'000'000;
constexpr double lead = 600;

CalendarEventInfo event(std::string id, double start) {
  return {.id = std::move(id), .title = "Sync", .start = start, .end = start + 1800};
}

TEST(UpcomingEventSoundLogTest, SoundsOncePerLeadPeriodForTheWholeBatch) {
  UpcomingEventSoundLog log;
  CalendarEventInfo allDay = event("allDay", t0 + 60);
  allDay.isAllDay = true;
  const std::vector<CalendarEventInfo> events{event("a", t0 + 600), event("b", t0 + 60), allDay,
                                              event("later", t0 + 601)};
  EXPECT_TRUE(log.recordDue(events, t0, lead));
  EXPECT_EQ(log.played, (decltype(log.played){{"a", t0 + 600}, {"b", t0 + 60}}));
  EXPECT_FALSE(log.recordDue(events, t0 + 0.5, lead));
  EXPECT_TRUE(log.recordDue(events, t0 + 1, lead));  // "later" enters its lead period
  EXPECT_EQ(log.played.size(), 3U);

  // At b's start its entry leaves the log; nothing new sounds.
  EXPECT_FALSE(log.recordDue(events, t0 + 60, lead));
  EXPECT_FALSE(log.played.contains("b"));
}

TEST(UpcomingEventSoundLogTest, MovedStartSoundsAgainOnlyOnceTheOldEntryIsGone) {
  UpcomingEventSoundLog log;
  EXPECT_TRUE(log.recordDue(std::vector{event("a", t0 + 300)}, t0, lead));
  // Moved earlier: the old entry still stands, so no second sound.
  EXPECT_FALSE(log.recordDue(std::vector{event("a", t0 + 200)}, t0 + 10, lead));
  EXPECT_EQ(log.played.at("a"), t0 + 300);
  // Moved later, past the old start: the old entry is pruned and the new lead period sounds.
  EXPECT_TRUE(log.recordDue(std::vector{event("a", t0 + 900)}, t0 + 300, lead));
  EXPECT_EQ(log.played.at("a"), t0 + 900);
}

TEST(UpcomingEventSoundLogTest, StoredFormDropsWhatIsNotAFiniteStart) {
  UpcomingEventSoundLog log;
  log.played = {{"a", t0}, {"b\"\u00e9", t0 + 0.5}};
  EXPECT_EQ(UpcomingEventSoundLog::decoded(log.encoded()), log);

  JSONValue::Object stored{
      {"ok", t0}, {"nan", NAN}, {"inf", INFINITY}, {"text", "1800000000"}, {"null", nullptr}};
  EXPECT_EQ(UpcomingEventSoundLog::fromJSON(stored).played, (decltype(log.played){{"ok", t0}}));
  EXPECT_TRUE(UpcomingEventSoundLog::decoded("{\"a\": 1e999, \"b\": 2}").played.empty());
  EXPECT_TRUE(UpcomingEventSoundLog::decoded("[1, 2]").played.empty());
  EXPECT_TRUE(UpcomingEventSoundLog::decoded("").played.empty());
  EXPECT_EQ(UpcomingEventSoundLog::decoded("{\"a\": 5, \"b\": {}}").played,
            (decltype(log.played){{"a", 5}}));
}

}  // namespace
}  // namespace tindra
