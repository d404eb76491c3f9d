#include "base/timer_one_shot_scheduler.h"

#include <algorithm>
#include <cmath>

namespace tindra {

TimerOneShotScheduler::TimerOneShotScheduler() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, [this] {
    if (wake_) wake_();
  });
}

void TimerOneShotScheduler::aim(double delaySeconds) {
  timer_.start(timerMilliseconds(delaySeconds));
}

int TimerOneShotScheduler::timerMilliseconds(double delaySeconds) {
  // QTimer takes an int: anything beyond about 23 days is aimed at the limit and re-aimed then.
  constexpr double limit = 2.0e9;
  if (!(delaySeconds > 0)) return 0;  // also NaN
  return static_cast<int>(std::min(std::ceil(delaySeconds * 1000.0), limit));
}

}  // namespace tindra
