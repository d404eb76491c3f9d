// FakeBatteryBackend: invented battery readings for the demo, screenshots and tests, chosen only
// when TINDRA_FAKE names "battery". Its check says that nothing shown is real.
#pragma once

#include "power/battery_backend.h"

namespace tindra {

class FakeBatteryBackend final : public BatteryBackend {
  Q_OBJECT

 public:
  // Starts at 76 % on battery with 3 h 12 min to go.
  explicit FakeBatteryBackend(QObject* parent = nullptr);

  void start() override {}

  void setReading(const std::optional<BatteryStatus>& reading) { publish(reading); }
  using Backend::setCheck;
};

}  // namespace tindra
