#include "base/next_change.h"

#include "base/timer_one_shot_scheduler.h"

namespace tindra {

NextChange::NextChange(OneShotScheduler::Wake wake, std::unique_ptr<OneShotScheduler> scheduler)
    : scheduler_(scheduler ? std::move(scheduler) : std::make_unique<TimerOneShotScheduler>()) {
  scheduler_->setWake([this, wake = std::move(wake)] {
    next_.reset();
    wake();
  });
}

void NextChange::aimAt(double now, double at) {
  next_ = at;
  scheduler_->aim(at - now);
}

void NextChange::cancel() {
  next_.reset();
  scheduler_->cancel();
}

}  // namespace tindra
