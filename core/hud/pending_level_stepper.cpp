#include "hud/pending_level_stepper.h"

#include <cmath>

#include "hud/level_stepper.h"

namespace tindra {

double PendingLevelStepper::base(double read, double now) const {
  if (!pendingLevel_) return read;
  // A clock that ran backwards gives a negative age, which is not recent.
  const double age = now - pendingAt_;
  const bool recent = age >= 0 && age < trustInterval;
  const bool close = std::abs(read - *pendingLevel_) < closeness;
  return recent || close ? *pendingLevel_ : read;
}

double PendingLevelStepper::step(bool up, bool fine, double read, double now) {
  const double level = LevelStepper::step(up, fine, base(read, now));
  record(level, now);
  return level;
}

void PendingLevelStepper::record(double level, double at) {
  pendingLevel_ = level;
  pendingAt_ = at;
}

}  // namespace tindra
