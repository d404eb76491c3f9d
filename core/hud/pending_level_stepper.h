// PendingLevelStepper: remembers the last level this program wrote, because the hardware reports
// a written level with a lag. Fast repeated presses build on the remembered level instead of a
// stale read. Times are seconds of one monotonic clock, chosen by the caller.
#pragma once

#include <optional>

namespace tindra {

class PendingLevelStepper {
 public:
  // The remembered level is trusted this long after it was written...
  static constexpr double trustInterval = 1.0;
  // ...or for as long as the read stays closer to it than one coarse step.
  static constexpr double closeness = 0.0625;

  // The level a press at `now` starts from: the pending level while it is trusted, else `read`.
  double base(double read, double now) const;

  // Steps from `base(read, now)`, remembers the result at `now` and returns it.
  double step(bool up, bool fine, double read, double now);

  // Remembers a level written by other means.
  void record(double level, double at);

  std::optional<double> pendingLevel() const { return pendingLevel_; }
  double pendingAt() const { return pendingAt_; }

  friend bool operator==(const PendingLevelStepper&, const PendingLevelStepper&) = default;

 private:
  std::optional<double> pendingLevel_;
  double pendingAt_ = 0;
};

}  // namespace tindra
