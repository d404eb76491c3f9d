#include "hud/keyboard_backlight_write_monitor.h"

#include <cmath>

namespace tindra {

KeyboardBacklightWriteMonitor::Verdict KeyboardBacklightWriteMonitor::verdict(double before,
                                                                              double requested,
                                                                              double after) {
  if (std::abs(requested - before) < smallestJudgedChange) return Verdict::inconclusive;
  if (std::abs(after - requested) <= effectiveTolerance) return Verdict::effective;
  if (std::abs(after - before) <= unmovedTolerance) return Verdict::noEffect;
  return Verdict::inconclusive;
}

bool KeyboardBacklightWriteMonitor::record(Verdict verdict) {
  switch (verdict) {
    case Verdict::effective:
      ineffectiveInARow_ = 0;
      break;
    case Verdict::noEffect:
      ++ineffectiveInARow_;
      break;
    case Verdict::inconclusive:
      break;
  }
  return ineffectiveInARow_ >= giveUpAfter;
}

}  // namespace tindra
