#include "calendar/event_countdown.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calendar/calendar_test_printers.h"

namespace tindra {
namespace {

constexpr double t0 = 1'800'000'000;

CalendarEventInfo meeting(double start, double end) {
  return {.id = "m", .title = "Sync", .start = start, .end = end};
}

TEST(EventCountdownTest, MinutesToGoRoundUp) {
  const CalendarEventInfo e = meeting(t0, t0 + 1800);
  EXPECT_EQ(countdown(e, t0 - 30), EventCountdown::startsIn(1));
  EXPECT_EQ(countdown(e, t0 - 60), EventCountdown::startsIn(1));
  EXPECT_EQ(countdown(e, t0 - 60.001), EventCountdown::startsIn(2));
  EXPECT_EQ(countdown(e, t0 - 0.001), EventCountdown::startsIn(1));
}

TEST(EventCountdownTest, UnderWayRoundsElapsedDownAndRemainingUp) {
  const CalendarEventInfo e = meeting(t0, t0 + 90 + 28.5 * 60);
  EXPECT_EQ(countdown(e, t0 + 90), EventCountdown::underWay(1, 29));
  EXPECT_EQ(countdown(e, t0), EventCountdown::underWay(0, 30));
  EXPECT_EQ(countdown(e, t0 + 59.999), EventCountdown::underWay(0, 30));
  EXPECT_EQ(countdown(e, t0 + 60), EventCountdown::underWay(1, 29));
  EXPECT_EQ(countdown(e, e.end - 0.5), EventCountdown::underWay(29, 1));
  EXPECT_EQ(countdown(e, e.end), EventCountdown::ended());
  // An event that ends as it starts goes straight from startsIn to ended.
  EXPECT_EQ(countdown(meeting(t0, t0), t0), EventCountdown::ended());
}

TEST(EventCountdownTest, HoursAndMinutesClampNegatives) {
  EXPECT_EQ(hoursAndMinutes(-5), (HoursAndMinutes{0, 0}));
  EXPECT_EQ(hoursAndMinutes(59), (HoursAndMinutes{0, 59}));
  EXPECT_EQ(hoursAndMinutes(60), (HoursAndMinutes{1, 0}));
  EXPECT_EQ(hoursAndMinutes(119), (HoursAndMinutes{1, 59}));
}

TEST(EventCountdownDeathTest, CorruptDateStopsTheProgram) {
  EXPECT_DEATH(countdown(meeting(NAN, t0 + 60), t0), "minute figure");
  EXPECT_DEATH(countdown(meeting(1e300, t0), t0), "minute figure");
}

}  // namespace
}  // namespace tindra
