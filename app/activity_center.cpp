#include "activity_center.h"

#include <QDeadlineTimer>
#include <algorithm>
#include <cmath>

#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {

double ActivityCenter::monotonicNow() {
  // QTimer sleeps on this same clock, so a timer never wakes before the time it aimed at.
  return static_cast<double>(QDeadlineTimer::current(Qt::PreciseTimer).deadlineNSecs()) / 1e9;
}

ActivityCenter::ActivityCenter(const SettingsStore& settings, Clock clock, QObject* parent)
    : QObject(parent), settings_(settings), clock_(std::move(clock)) {
  expiryTimer_.setSingleShot(true);
  expiryTimer_.setTimerType(Qt::PreciseTimer);
  connect(&expiryTimer_, &QTimer::timeout, this, &ActivityCenter::expire);
}

void ActivityCenter::offer(const ActivityEvent& event) {
  const double now = clock_();
  setCurrent(coordinator_.handle(event.scaled(noticeScale()), now));
  scheduleExpiry(now);
}

void ActivityCenter::reset() {
  expiryTimer_.stop();
  coordinator_ = ActivityCoordinator();
  setCurrent(ActivityKind::idle);
}

NoticeDurationScale ActivityCenter::noticeScale() const {
  return noticeDurationScaleFromRaw(settings_.read(settings::noticeDurationScale))
      .value_or(NoticeDurationScale::medium);
}

void ActivityCenter::setCurrent(ActivityKind kind) {
  if (kind == current_) return;
  current_ = kind;
  emit currentChanged(kind);
}

void ActivityCenter::scheduleExpiry(double now) {
  expiryTimer_.stop();
  const std::optional<double> next = coordinator_.nextExpiry();
  if (!next) return;
  // Rounded up to whole milliseconds so the wake-up finds the entry already lapsed.
  const double delay = std::max(0.0, *next - now);
  expiryTimer_.start(static_cast<int>(std::min(std::ceil(delay * 1000.0), 2.0e9)));
}

void ActivityCenter::expire() {
  const double now = clock_();
  setCurrent(coordinator_.refresh(now));
  scheduleExpiry(now);
}

}  // namespace tindra
