// ActivityCenter: the app's single owner of the ActivityCoordinator. Providers offer events here
// on the main thread; the center stamps them with the monotonic clock, applies the user's
// notice length and publishes the winning kind. One expiry timer at most is pending, always
// aimed at the earliest stored expiry.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "activity/activity_coordinator.h"
#include "activity/activity_event.h"
#include "activity/activity_kind.h"

namespace tindra {

class SettingsStore;

class ActivityCenter : public QObject {
  Q_OBJECT

 public:
  using Clock = std::function<double()>;  // monotonic seconds

  // Seconds on the monotonic clock that the expiry timer also sleeps on.
  static double monotonicNow();

  explicit ActivityCenter(const SettingsStore& settings, Clock clock = monotonicNow,
                          QObject* parent = nullptr);

  // The only way providers reach the coordinator.
  void offer(const ActivityEvent& event);
  // Forgets every activity.
  void reset();

  ActivityKind current() const { return current_; }
  // True while an expiry timer is pending.
  bool isExpiryScheduled() const { return expiryTimer_.isActive(); }

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
  QTimer expiryTimer_;
};

}  // namespace tindra
