// BatteryBackend: where readings of the internal battery come from, reported when they change.
// BatteryBackend::Null is the do-nothing backend of a session without a battery service.
#pragma once

#include <optional>

#include "base/backend.h"
#include "power/battery_status.h"

namespace tindra {

class BatteryBackend : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<BatteryBackend>;

  // The latest reading; nothing when there is no battery or no service to ask.
  const std::optional<BatteryStatus>& reading() const { return reading_; }

 signals:
  void readingChanged();

 protected:
  void publish(const std::optional<BatteryStatus>& reading) {
    if (assignIfChanged(reading_, reading)) emit readingChanged();
  }

 private:
  std::optional<BatteryStatus> reading_;
};

}  // namespace tindra
