// TimerOneShotScheduler: the app's OneShotScheduler, a precise single-shot QTimer. Delays are
// rounded up to whole milliseconds so that a wake-up never arrives before what it was aimed at.
#pragma once

#include <QTimer>

#include "base/one_shot_scheduler.h"

namespace tindra {

class TimerOneShotScheduler final : public OneShotScheduler {
 public:
  TimerOneShotScheduler();

  void setWake(Wake wake) override { wake_ = std::move(wake); }
  void aim(double delaySeconds) override;
  void cancel() override { timer_.stop(); }
  bool isPending() const override { return timer_.isActive(); }

  // The delay a wake-up of `delaySeconds` is given to the timer.
  static int timerMilliseconds(double delaySeconds);

 private:
  QTimer timer_;
  Wake wake_;
};

}  // namespace tindra
