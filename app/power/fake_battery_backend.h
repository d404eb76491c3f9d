// FakeBatteryBackend: invented battery readings for the demo, screenshots and tests, chosen only
// when TINDRA_FAKE names "battery". Its check says that nothing shown is real.
#pragma once

#include "power/battery_backend.h"

namespace tindra {

class FakeBatteryBackend final : public BatteryBackend {
 public:
  // Starts at 76 % on battery with 3 h 12 min to go.
  explicit FakeBatteryBackend(QObject* parent = nullptr);

  void start() override {}
  std::optional<BatteryStatus> reading() const override { return reading_; }
  ServiceCheck check() const override { return check_; }

  void setReading(std::optional<BatteryStatus> reading);
  void setCheck(ServiceCheck check);

 private:
  std::optional<BatteryStatus> reading_;
  ServiceCheck check_;
};

}  // namespace tindra
