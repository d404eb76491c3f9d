#include "calendar/event_time_format.h"

#include <gtest/gtest.h>

#include "calendar/calendar_test_printers.h"

namespace tindra {
namespace {

constexpr double t0 = 1'800'000'000;

TEST(EventTimeFormatTest, EarTextMinuteAndHourEdges) {
  const CalendarEventInfo e{.id = "m", .title = "Sync", .start = t0, .end = t0 + 600};
  auto ear = [&](double secondsToGo) {
    return earText(e, t0 - secondsToGo, EventTimeFormat::countdown);
  };
  EXPECT_EQ(ear(30), EarText::minutes(1));
  EXPECT_EQ(ear(59 * 60), EarText::minutes(59));
  EXPECT_EQ(ear(59 * 60 + 0.5), EarText::hours(1));  // rounds up to 60 minutes
  EXPECT_EQ(ear(59 * 60 + 30), EarText::hours(1));
  EXPECT_EQ(ear(60 * 60 + 1), EarText::hours(1));
  EXPECT_EQ(ear(119 * 60), EarText::hours(1));  // truncated, not rounded
  EXPECT_EQ(ear(119 * 60 + 1), EarText::hours(2));
  EXPECT_EQ(ear(0), EarText::now());
  EXPECT_EQ(ear(-600), EarText::now());
}

TEST(EventTimeFormatTest, FormatChoosesStartTimeOrCountdown) {
  const CalendarEventInfo e{.id = "m", .title = "Sync", .start = t0, .end = t0 + 600};
  EXPECT_EQ(earText(e, t0 - 90, EventTimeFormat::startTime), EarText::startTime(t0));
  EXPECT_EQ(earText(e, t0 - 90, EventTimeFormat::both), EarText::minutes(2));
  EXPECT_EQ(earText(e, t0, EventTimeFormat::startTime), EarText::now());
  EXPECT_EQ(earText(3600), EarText::hours(1));
  EXPECT_EQ(earText(0), EarText::minutes(0));
  EXPECT_TRUE(showsCountdown(EventTimeFormat::both));
  EXPECT_FALSE(showsCountdown(EventTimeFormat::startTime));
  EXPECT_TRUE(showsStartTime(EventTimeFormat::both));
  EXPECT_FALSE(showsStartTime(EventTimeFormat::startTime));
}

TEST(EventTimeFormatTest, RawValuesRoundTripInPickerOrder) {
  EXPECT_EQ(rawValue(allCases<EventTimeFormat>()[1]), "startTime");
  for (EventTimeFormat format : allCases<EventTimeFormat>()) {
    EXPECT_EQ(enumFromRaw<EventTimeFormat>(rawValue(format)), format);
  }
  EXPECT_EQ(enumFromRaw<EventTimeFormat>("Both"), std::nullopt);
}

}  // namespace
}  // namespace tindra
