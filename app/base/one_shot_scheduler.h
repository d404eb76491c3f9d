// OneShotScheduler: at most one pending wake-up, aimed at a delay in seconds from now. Whoever
// sleeps on it (ActivityCenter) never owns a timer of its own, so tests can see exactly where a
// wake-up is aimed and fire it when they choose.
#pragma once

#include <functional>

namespace tindra {

class OneShotScheduler {
 public:
  using Wake = std::function<void()>;

  virtual ~OneShotScheduler() = default;

  // The call made when a wake-up comes due.
  virtual void setWake(Wake wake) = 0;
  // Replaces any pending wake-up with one after `delaySeconds` (negative means now).
  virtual void aim(double delaySeconds) = 0;
  virtual void cancel() = 0;
  virtual bool isPending() const = 0;
};

}  // namespace tindra
