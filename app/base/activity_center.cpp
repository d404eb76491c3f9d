#include "base/activity_center.h"

#include <QDeadlineTimer>

#include "base/timer_one_shot_scheduler.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {

double ActivityCenter::monotonicNow() {
  // QTimer sleeps on this same clock, so a timer never wakes before the time it aimed at.
  return static_cast<double>(QDeadlineTimer::current(Qt::PreciseTimer).deadlineNSecs()) / 1e9;
}

ActivityCenter::ActivityCenter(const SettingsStore& settings, Clock clock,
                               std::unique_ptr<OneShotScheduler> scheduler, QObject* parent)
    : QObject(parent),
      settings_(settings),
      clock_(std::move(clock)),
      scheduler_(scheduler ? std::move(scheduler) : std::make_unique<TimerOneShotScheduler>()) {
  scheduler_->setWake([this] { expire(); });
}

void ActivityCenter::offer(const ActivityEvent& event) {
  const double now = clock_();
  setCurrent(coordinator_.handle(event.scaled(noticeScale()), now));
  scheduleExpiry(now);
}

void ActivityCenter::reset() {
  scheduler_->cancel();
  coordinator_ = ActivityCoordinator();
  setCurrent(ActivityKind::idle);
}

NoticeDurationScale ActivityCenter::noticeScale() const {
  return settings_.read(settings::noticeDurationScale);
}

void ActivityCenter::setCurrent(ActivityKind kind) {
  if (kind == current_) return;
  current_ = kind;
  emit currentChanged(kind);
}

void ActivityCenter::scheduleExpiry(double now) {
  const std::optional<double> next = coordinator_.nextExpiry();
  if (next) {
    scheduler_->aim(*next - now);
  } else {
    scheduler_->cancel();
  }
}

void ActivityCenter::expire() {
  const double now = clock_();
  setCurrent(coordinator_.refresh(now));
  scheduleExpiry(now);
}

}  // namespace tindra
