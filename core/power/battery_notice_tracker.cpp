#include "power/battery_notice_tracker.h"

namespace tindra {
namespace {

// A level must climb this far above the threshold before the warning can come again, so a level
// hovering at the threshold does not warn at every wobble.
constexpr int rearmMargin = 2;

}  // namespace

std::optional<BatteryNotice> BatteryNoticeTracker::observe(const BatteryStatus& status,
                                                           const Settings& settings) {
  const std::optional<BatteryStatus> previous = last;
  last = status;

  std::optional<BatteryNotice> candidate;
  if (status.isPluggedIn) {
    lowAlerted = false;
  } else {
    // Clamped again: the fields are public and may have been set past the constructor.
    const int threshold = BatteryThreshold::clamped(settings.lowThreshold);
    if (status.percent > threshold + rearmMargin) lowAlerted = false;
    if (status.percent <= threshold && !lowAlerted && settings.lowAlert) {
      lowAlerted = true;
      candidate = BatteryNotice::low(status);
    }
  }
  if (candidate || !previous || previous->isPluggedIn == status.isPluggedIn) return candidate;

  if (status.isPluggedIn) {
    if (settings.pluggedInNotice) return BatteryNotice::pluggedIn(status);
  } else if (settings.unpluggedNotice) {
    return BatteryNotice::unplugged(status);
  }
  return std::nullopt;
}

}  // namespace tindra
