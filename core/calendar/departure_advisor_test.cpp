#include "calendar/departure_advisor.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calendar/calendar_test_printers.h"

namespace tindra {
namespace {

constexpr double t0 = 1'800'000'000;

TEST(DepartureAdvisorTest, NeedsTravelTimeWithinThreeHoursForAPlace) {
  CalendarEventInfo e{.id = "a",
                      .title = "Lunch",
                      .start = t0 + 10800,
                      .end = t0 + 14400,
                      .location = "Storgata 1, Oslo"};
  EXPECT_TRUE(DepartureAdvisor::needsTravelTime(e, t0));
  EXPECT_FALSE(DepartureAdvisor::needsTravelTime(e, t0 - 1));
  EXPECT_FALSE(DepartureAdvisor::needsTravelTime(e, e.start));  // already started

  e.location = "Zoom Meeting";
  EXPECT_FALSE(DepartureAdvisor::needsTravelTime(e, t0));
  e.coordinate = CalendarEventInfo::Coordinate{59.91, 10.75};
  EXPECT_TRUE(DepartureAdvisor::needsTravelTime(e, t0));
  e.isAllDay = true;
  EXPECT_FALSE(DepartureAdvisor::needsTravelTime(e, t0));
}

TEST(DepartureAdvisorTest, DestinationRefusesNonPlaces) {
  EXPECT_EQ(DepartureAdvisor::destination(" \n Zoom Meeting\t"), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::destination("ONLINE"), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::destination("\u00a0Microsoft Teams Meeting\u2028"), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::destination("B2 "), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::destination("e\u0301e\u0301"), std::nullopt);  // two characters
  EXPECT_EQ(DepartureAdvisor::destination(std::nullopt), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::destination("https://zoom.us/j/1"), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::destination("Room 4 / meet.google.com/abc-defg-hij"), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::destination("See https://example.com/map"), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::destination("  Room 4 "), "Room 4");
  EXPECT_EQ(DepartureAdvisor::destination("Zoom Room 3"), "Zoom Room 3");
  EXPECT_EQ(DepartureAdvisor::destination("Café"), "Café");
}

TEST(DepartureAdvisorTest, PlanRefusesImpossibleTravelTimes) {
  EXPECT_EQ(DepartureAdvisor::plan(t0, 1200, 5), (DeparturePlan{t0 - 1500, 1200}));
  EXPECT_EQ(DepartureAdvisor::plan(t0, 0, -3), (DeparturePlan{t0, 0}));
  EXPECT_EQ(DepartureAdvisor::plan(t0, 86399.5, 0), (DeparturePlan{t0 - 86399.5, 86399.5}));
  EXPECT_EQ(DepartureAdvisor::plan(t0, 86400, 0), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::plan(t0, -1, 0), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::plan(t0, NAN, 0), std::nullopt);
  EXPECT_EQ(DepartureAdvisor::plan(t0, INFINITY, 0), std::nullopt);
}

TEST(DepartureAdvisorTest, AdviceHasAOneMinuteBandEitherSide) {
  const DeparturePlan plan{t0, 600};
  auto at = [&](double secondsBeforeLeaving) {
    return DepartureAdvisor::advice(plan, t0 - secondsBeforeLeaving);
  };
  EXPECT_EQ(at(59), DepartureAdvice::leaveNow());
  EXPECT_EQ(at(60), DepartureAdvice::leaveIn(1));
  EXPECT_EQ(at(119), DepartureAdvice::leaveIn(1));
  EXPECT_EQ(at(120), DepartureAdvice::leaveIn(2));
  EXPECT_EQ(at(0), DepartureAdvice::leaveNow());
  EXPECT_EQ(at(-59), DepartureAdvice::leaveNow());
  EXPECT_EQ(at(-60), DepartureAdvice::late(1));
  EXPECT_EQ(at(-179), DepartureAdvice::late(2));
}

TEST(DepartureAdvisorDeathTest, OverflowingBufferStopsTheProgram) {
  EXPECT_DEATH(DepartureAdvisor::plan(t0, 0, INT64_MAX / 60 + 1), "overflows");
}

}  // namespace
}  // namespace tindra
