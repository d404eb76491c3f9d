// ActivityCenter: the app's single owner of the ActivityCoordinator. Providers offer events here
// on the main thread; the center stamps them with the monotonic clock, applies the user's
// notice length and publishes the winning kind. One wake-up at most is pending, always aimed at
// the earliest stored expiry.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "activity/activity_coordinator.h"
#include "activity/activity_event.h"
#include "activity/activity_kind.h"
#include "base/one_shot_scheduler.h"

namespace tindra {

class SettingsStore;

class ActivityCenter : public QObject {
  Q_OBJECT

 public:
  using Clock = std::function<double()>;  // monotonic seconds

  // Seconds on the monotonic clock that the expiry timer also sleeps on.
  static double monotonicNow();

  // Without a scheduler the center sleeps on a TimerOneShotScheduler.
  explicit ActivityCenter(const SettingsStore& settings, Clock clock = monotonicNow,
                          std::unique_ptr<OneShotScheduler> scheduler = nullptr,
                          QObject* parent = nullptr);

  // The only way providers reach the coordinator.
  void offer(const ActivityEvent& event);
  // Forgets every activity.
  void reset();

  ActivityKind current() const { return current_; }
  // The clock the centre was given: monotonic seconds, for everyone who times the notch.
  double now() const { return clock_(); }
  // True while an expiry wake-up is pending.
  bool isExpiryScheduled() const { return scheduler_->isPending(); }

 signals:
  // Emitted only when the shown kind really changes.
  void currentChanged(tindra::ActivityKind kind);

 private:
  NoticeDurationScale noticeScale() const;
  void setCurrent(ActivityKind kind);
  void scheduleExpiry(double now);
  void expire();

  const SettingsStore& settings_;
  Clock clock_;
  ActivityCoordinator coordinator_;
  ActivityKind current_ = ActivityKind::idle;
  std::unique_ptr<OneShotScheduler> scheduler_;
};

}  // namespace tindra
