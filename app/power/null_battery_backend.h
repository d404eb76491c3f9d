// NullBatteryBackend: the do-nothing backend for a platform or machine without a battery
// service. It never reads anything and says why.
#pragma once

#include "power/battery_backend.h"

namespace tindra {

class NullBatteryBackend final : public BatteryBackend {
 public:
  explicit NullBatteryBackend(QString reason, QObject* parent = nullptr)
      : BatteryBackend(parent), check_{DiagnosticsLog::Outcome::failed, std::move(reason)} {}

  void start() override {}
  std::optional<BatteryStatus> reading() const override { return std::nullopt; }
  ServiceCheck check() const override { return check_; }

 private:
  ServiceCheck check_;
};

}  // namespace tindra
