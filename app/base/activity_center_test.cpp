#include "base/activity_center.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "base/timer_one_shot_scheduler.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "testing/manual_one_shot_scheduler.h"

namespace tindra {
namespace {

class ActivityCenterTest : public ::testing::Test {
 protected:
  std::filesystem::path file() const { return dir_.filePath("settings.json").toStdString(); }

  QTemporaryDir dir_;
  SettingsStore store_{file(), [] { return 0.0; }};
};

ActivityKind kindAt(const QSignalSpy& spy, qsizetype index) {
  return spy.at(index).at(0).value<ActivityKind>();
}

TEST_F(ActivityCenterTest, WakeUpIsAimedAtEachExpiryInTurnUntilNoneIsLeft) {
  double now = 50;
  auto owned = std::make_unique<ManualOneShotScheduler>();
  ManualOneShotScheduler& scheduler = *owned;
  ActivityCenter center(
      store_, [&now] { return now; }, std::move(owned));
  QSignalSpy changes(&center, &ActivityCenter::currentChanged);
  center.offer(ActivityEvent::began(ActivityKind::nowPlaying));
  EXPECT_FALSE(scheduler.isPending());  // untimed only

  // The later, lower kind keeps its own time underneath the earlier, higher one.
  center.offer(ActivityEvent::began(ActivityKind::message, 10.0));
  now = 51;
  center.offer(ActivityEvent::began(ActivityKind::hud, 1.5));
  EXPECT_EQ(center.current(), ActivityKind::hud);
  EXPECT_DOUBLE_EQ(scheduler.aimed().value(), 1.5);

  now = 52.5;
  scheduler.fire();
  EXPECT_EQ(center.current(), ActivityKind::message);
  EXPECT_DOUBLE_EQ(scheduler.aimed().value(), 7.5);

  // A wake-up that comes early changes nothing and re-aims at what is left.
  now = 59;
  scheduler.fire();
  EXPECT_EQ(center.current(), ActivityKind::message);
  EXPECT_DOUBLE_EQ(scheduler.aimed().value(), 1.0);

  now = 60;
  scheduler.fire();
  EXPECT_EQ(center.current(), ActivityKind::nowPlaying);
  EXPECT_FALSE(scheduler.isPending());
  ASSERT_EQ(changes.count(), 5);
  EXPECT_EQ(kindAt(changes, 2), ActivityKind::hud);
  EXPECT_EQ(kindAt(changes, 4), ActivityKind::nowPlaying);
}

TEST_F(ActivityCenterTest, TheAppsTimerWakesOnceAfterTheExpiry) {
  ActivityCenter center(store_);
  QSignalSpy changes(&center, &ActivityCenter::currentChanged);
  center.offer(ActivityEvent::began(ActivityKind::hud, 0.05));
  EXPECT_TRUE(center.isExpiryScheduled());
  ASSERT_TRUE(changes.wait(2000));
  EXPECT_EQ(center.current(), ActivityKind::idle);
  EXPECT_FALSE(center.isExpiryScheduled());
  QTest::qWait(100);
  EXPECT_EQ(changes.count(), 2);
}

TEST(TimerOneShotSchedulerTest, RoundsUpToWholeMillisecondsWithinTheTimersRange) {
  EXPECT_EQ(TimerOneShotScheduler::timerMilliseconds(0.0501), 51);
  EXPECT_EQ(TimerOneShotScheduler::timerMilliseconds(0.05), 50);
  EXPECT_EQ(TimerOneShotScheduler::timerMilliseconds(-3), 0);
  EXPECT_EQ(TimerOneShotScheduler::timerMilliseconds(std::nan("")), 0);
  EXPECT_EQ(TimerOneShotScheduler::timerMilliseconds(1e12), 2'000'000'000);
}

TEST_F(ActivityCenterTest, ObserversHearOnlyRealChanges) {
  ActivityCenter center(store_);
  QSignalSpy changes(&center, &ActivityCenter::currentChanged);
  center.offer(ActivityEvent::began(ActivityKind::hud));
  center.offer(ActivityEvent::began(ActivityKind::hud, 30));     // same kind, new time
  center.offer(ActivityEvent::began(ActivityKind::nowPlaying));  // below hud
  center.offer(ActivityEvent::ended(ActivityKind::accessory));   // never began
  center.offer(ActivityEvent::began(ActivityKind::idle, 5));
  EXPECT_EQ(changes.count(), 1);

  center.offer(ActivityEvent::ended(ActivityKind::hud));
  EXPECT_EQ(center.current(), ActivityKind::nowPlaying);
  center.reset();
  center.reset();
  EXPECT_EQ(center.current(), ActivityKind::idle);
  EXPECT_FALSE(center.isExpiryScheduled());
  EXPECT_EQ(changes.count(), 3);
}

TEST_F(ActivityCenterTest, NoticeLengthComesFromTheSettings) {
  double now = 100;
  ActivityCenter center(store_, [&now] { return now; });
  // A battery notice of 2 s lasts 1.5 s when short, 2 s at medium (also for unknown text) and
  // 3.2 s when long. `ended(idle)` only makes the centre look at the clock again.
  const auto shownAfter = [&](double seconds) {
    now = 100;
    center.reset();
    center.offer(ActivityEvent::began(ActivityKind::batteryAlert, 2));
    now = 100 + seconds;
    center.offer(ActivityEvent::ended(ActivityKind::idle));
    return center.current();
  };
  ASSERT_TRUE(store_.write(settings::noticeDurationScale, NoticeDurationScale::short_));
  EXPECT_EQ(shownAfter(1.49), ActivityKind::batteryAlert);
  EXPECT_EQ(shownAfter(1.5), ActivityKind::idle);

  ASSERT_TRUE(store_.writeStored(settings::noticeDurationScale.name, JSONValue("fortnight")));
  EXPECT_EQ(shownAfter(1.99), ActivityKind::batteryAlert);
  EXPECT_EQ(shownAfter(2.0), ActivityKind::idle);

  ASSERT_TRUE(store_.write(settings::noticeDurationScale, NoticeDurationScale::long_));
  EXPECT_EQ(shownAfter(3.19), ActivityKind::batteryAlert);
  EXPECT_EQ(shownAfter(3.2), ActivityKind::idle);

  // The indicator is no notice: its time never scales.
  now = 100;
  center.offer(ActivityEvent::began(ActivityKind::hud, 1));
  now = 101;
  center.offer(ActivityEvent::ended(ActivityKind::idle));
  EXPECT_EQ(center.current(), ActivityKind::idle);
}

}  // namespace
}  // namespace tindra
