// BatteryNoticeTracker: remembers the previous battery reading and whether the low warning was
// already given, and decides which notice (if any) each new reading deserves. The low warning
// appears once when the level reaches the threshold and again only after charging.
#pragma once

#include <cstdint>
#include <optional>

#include "power/battery_notice.h"
#include "power/battery_status.h"
#include "power/battery_threshold.h"

namespace tindra {

struct BatteryNoticeTracker {
  // The user's notice choices; the threshold is clamped into the allowed range.
  struct Settings {
    explicit Settings(bool pluggedInNotice = true, bool unpluggedNotice = true,
                      bool lowAlert = true,
                      std::int64_t lowThreshold = BatteryThreshold::defaultValue)
        : pluggedInNotice(pluggedInNotice),
          unpluggedNotice(unpluggedNotice),
          lowAlert(lowAlert),
          lowThreshold(BatteryThreshold::clamped(lowThreshold)) {}

    bool pluggedInNotice;
    bool unpluggedNotice;
    bool lowAlert;
    int lowThreshold;

    friend bool operator==(const Settings&, const Settings&) = default;
  };

  std::optional<BatteryStatus> last;  // the previous reading; none before the first
  bool lowAlerted = false;            // the low warning was given and not yet re-armed

  // Takes in the next reading. A low warning beats a power change at the same reading, and the
  // first reading never counts as a power change.
  std::optional<BatteryNotice> observe(const BatteryStatus& status, const Settings& settings);

  friend bool operator==(const BatteryNoticeTracker&, const BatteryNoticeTracker&) = default;
};

}  // namespace tindra
