// NextChange: one wake-up on a OneShotScheduler, aimed at the earliest moment anything shown
// changes next, never a fixed tick. The owner aims it again whenever what it shows is brought up
// to date, so a change of inputs re-aims it too. Moments are on the owner's clock (seconds since
// 1970 for the providers); a wake-up that comes a hair early finds nothing changed and is aimed
// again.
#pragma once

#include <algorithm>
#include <memory>
#include <optional>

#include "base/one_shot_scheduler.h"

namespace tindra {

class NextChange {
 public:
  // Without a scheduler it sleeps on a TimerOneShotScheduler.
  explicit NextChange(OneShotScheduler::Wake wake,
                      std::unique_ptr<OneShotScheduler> scheduler = nullptr);
  NextChange(const NextChange&) = delete;
  NextChange& operator=(const NextChange&) = delete;

  // Aims at the earliest moment after `now` that `moments` hands to the function it is given,
  // or at `latest` when none comes before it.
  template <class Moments>
  void aim(double now, double latest, Moments&& moments) {
    double next = latest;
    moments([&](double at) {
      if (at > now) next = std::min(next, at);
    });
    aimAt(now, next);
  }
  // Aims at `at`, one moment known on its own.
  void aimAt(double now, double at);
  void cancel();
  // Where the pending wake-up is aimed; none while none is.
  std::optional<double> next() const { return next_; }

 private:
  std::unique_ptr<OneShotScheduler> scheduler_;
  std::optional<double> next_;
};

}  // namespace tindra
