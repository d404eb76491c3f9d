// ManualOneShotScheduler: a OneShotScheduler for tests. It records where the wake-up is aimed
// and fires only when the test says so.
#pragma once

#include <optional>

#include "base/one_shot_scheduler.h"

namespace tindra {

class ManualOneShotScheduler final : public OneShotScheduler {
 public:
  void setWake(Wake wake) override { wake_ = std::move(wake); }
  void aim(double delaySeconds) override { aimed_ = delaySeconds; }
  void cancel() override { aimed_.reset(); }
  bool isPending() const override { return aimed_.has_value(); }

  // The delay of the pending wake-up, if any.
  std::optional<double> aimed() const { return aimed_; }
  // Fires the pending wake-up as its timer would: once, and no longer pending unless re-aimed.
  void fire() {
    if (!aimed_) return;
    aimed_.reset();
    if (wake_) wake_();
  }

 private:
  std::optional<double> aimed_;
  Wake wake_;
};

}  // namespace tindra
