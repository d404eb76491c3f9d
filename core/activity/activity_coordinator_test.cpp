#include "activity/activity_coordinator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tindra {
namespace {

using K = ActivityKind;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(ActivityCoordinator, EmptyShowsIdleAndHasNoExpiry) {
  ActivityCoordinator c;
  EXPECT_EQ(c.refresh(0), K::idle);
  EXPECT_EQ(c.handle(ActivityEvent::ended(K::accessory), 0), K::idle);
  EXPECT_EQ(c.nextExpiry(), std::nullopt);
}

TEST(ActivityCoordinator, ExpiryIsExclusive) {
  ActivityCoordinator c;
  EXPECT_EQ(c.handle(ActivityEvent::began(K::hud, 1.0), 100), K::hud);
  EXPECT_EQ(c.refresh(100.999), K::hud);
  EXPECT_EQ(c.refresh(101.0), K::idle);
  EXPECT_TRUE(c.isEmpty());
}

TEST(ActivityCoordinator, HigherPriorityCoversAndLowerReturns) {
  ActivityCoordinator c;
  c.handle(ActivityEvent::began(K::nowPlaying), 0);
  EXPECT_EQ(c.handle(ActivityEvent::began(K::hud, 2), 10), K::hud);
  EXPECT_EQ(c.nextExpiry(), 12.0);
  EXPECT_EQ(c.refresh(12), K::nowPlaying);
  // An entry lapsing underneath a higher one is gone when the higher one ends.
  c.handle(ActivityEvent::began(K::focus, 3), 20);
  c.handle(ActivityEvent::began(K::incomingCall), 20);
  EXPECT_EQ(c.handle(ActivityEvent::ended(K::incomingCall), 24), K::nowPlaying);
}

TEST(ActivityCoordinator, NonPositiveDurationActsAsEnded) {
  ActivityCoordinator c;
  c.handle(ActivityEvent::began(K::message, 10), 0);
  EXPECT_EQ(c.handle(ActivityEvent::began(K::message, 0), 1), K::idle);
  c.handle(ActivityEvent::began(K::message, 10), 2);
  EXPECT_EQ(c.handle(ActivityEvent::began(K::message, -1), 3), K::idle);
}

TEST(ActivityCoordinator, InfiniteAndNaNDurationsLastUntilEnded) {
  for (double duration : {inf, nan}) {
    ActivityCoordinator c;
    EXPECT_EQ(c.handle(ActivityEvent::began(K::focus, duration), 0), K::focus);
    EXPECT_EQ(c.entry(K::focus), ActivityCoordinator::Entry{std::nullopt});
    EXPECT_EQ(c.refresh(1e12), K::focus);
    EXPECT_EQ(c.nextExpiry(), std::nullopt);
  }
}

TEST(ActivityCoordinator, RepeatedBeganRestartsAndMayShorten) {
  ActivityCoordinator c;
  c.handle(ActivityEvent::began(K::batteryAlert, 10), 0);
  c.handle(ActivityEvent::began(K::batteryAlert, 2), 5);
  EXPECT_EQ(c.entry(K::batteryAlert)->expiresAt, 7.0);
  c.handle(ActivityEvent::began(K::batteryAlert), 6);
  EXPECT_EQ(c.entry(K::batteryAlert)->expiresAt, std::nullopt);
}

TEST(ActivityCoordinator, IdleEventsChangeNothingButStillPrune) {
  ActivityCoordinator c;
  c.handle(ActivityEvent::began(K::nowPlaying), 0);
  c.handle(ActivityEvent::began(K::hud, 1), 0);
  const ActivityCoordinator before = c;
  EXPECT_EQ(c.handle(ActivityEvent::began(K::idle, 5), 0.5), K::hud);
  EXPECT_EQ(c.handle(ActivityEvent::ended(K::idle), 0.5), K::hud);
  EXPECT_EQ(c, before);
  EXPECT_FALSE(c.entry(K::idle).has_value());
  EXPECT_EQ(c.handle(ActivityEvent::ended(K::idle), 2), K::nowPlaying);
  EXPECT_FALSE(c.entry(K::hud).has_value());
}

TEST(ActivityCoordinator, NextExpiryIncludesLapsedEntries) {
  ActivityCoordinator c;
  c.handle(ActivityEvent::began(K::airDrop, 5), 0);
  c.handle(ActivityEvent::began(K::hud, 1), 0);
  c.handle(ActivityEvent::began(K::nowPlaying), 0);
  EXPECT_EQ(c.nextExpiry(), 1.0);  // not pruned until the next handle or refresh
  c.refresh(3);
  EXPECT_EQ(c.nextExpiry(), 5.0);
}

TEST(ActivityEvent, EqualityFollowsDurationsNumerically) {
  using E = ActivityEvent;
  EXPECT_EQ(E::began(K::hud), E::began(K::hud));
  EXPECT_EQ(E::began(K::hud, 2), E::began(K::hud, 2.0));
  EXPECT_NE(E::began(K::hud, 2), E::began(K::hud));
  EXPECT_NE(E::began(K::hud, nan), E::began(K::hud, nan));
  EXPECT_NE(E::began(K::hud), E::ended(K::hud));
  EXPECT_EQ(E::ended(K::focus), E::ended(K::focus));
  EXPECT_NE(E::ended(K::focus), E::ended(K::hud));
}

TEST(ActivityEvent, ScalingAppliesToPositiveNoticeDurationsOnly) {
  using E = ActivityEvent;
  using S = NoticeDurationScale;
  EXPECT_EQ(E::began(K::batteryAlert, 4).scaled(S::short_), E::began(K::batteryAlert, 4 * 0.6));
  EXPECT_EQ(E::began(K::batteryAlert, 2).scaled(S::short_), E::began(K::batteryAlert, 1.5));
  EXPECT_EQ(E::began(K::batteryAlert, 1).scaled(S::short_), E::began(K::batteryAlert, 1));
  EXPECT_EQ(E::began(K::airDrop, 5).scaled(S::long_), E::began(K::airDrop, 8));
  EXPECT_EQ(E::began(K::focus, 4).scaled(S::medium), E::began(K::focus, 4));
  for (K kind : {K::idle, K::nowPlaying, K::upcomingEvent, K::hud, K::incomingCall}) {
    EXPECT_EQ(E::began(kind, 5).scaled(S::long_), E::began(kind, 5));
  }
  EXPECT_EQ(E::began(K::message).scaled(S::long_), E::began(K::message));
  EXPECT_EQ(E::began(K::message, -3).scaled(S::long_), E::began(K::message, -3));
  EXPECT_EQ(E::began(K::message, inf).scaled(S::short_), E::began(K::message, inf));
  EXPECT_EQ(E::ended(K::message).scaled(S::short_), E::ended(K::message));
}

TEST(NoticeDurationScale, RawValuesRoundTripAndUnknownIsNone) {
  for (NoticeDurationScale s : allCases<NoticeDurationScale>()) {
    EXPECT_EQ(enumFromRaw<NoticeDurationScale>(rawValue(s)), s);
  }
  EXPECT_EQ(enumFromRaw<NoticeDurationScale>("Short"), std::nullopt);
  EXPECT_EQ(enumFromRaw<NoticeDurationScale>(""), std::nullopt);
}

TEST(ActivityKind, RawValuesAreThePriorities) {
  EXPECT_EQ(enumFromRaw<ActivityKind>(-1), std::nullopt);
  EXPECT_EQ(enumFromRaw<ActivityKind>(10), std::nullopt);
  for (std::size_t i = 0; i < allCases<ActivityKind>().size(); ++i) {
    EXPECT_EQ(enumFromRaw<ActivityKind>(static_cast<int>(i)), allCases<ActivityKind>()[i]);
  }
  EXPECT_FALSE(isNotice(K::upcomingEvent));
  EXPECT_TRUE(isNotice(K::focus));
  EXPECT_TRUE(isNotice(K::batteryAlert));
  EXPECT_FALSE(isNotice(K::hud));
  EXPECT_EQ(name(K::incomingCall), "incomingCall");
}

}  // namespace
}  // namespace tindra
