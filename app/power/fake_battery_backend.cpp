#include "power/fake_battery_backend.h"

namespace tindra {

FakeBatteryBackend::FakeBatteryBackend(QObject* parent)
    : BatteryBackend(parent),
      reading_(BatteryStatus(76, false, false, false, 192)),
      check_{DiagnosticsLog::Outcome::degraded,
             tr("invented readings (TINDRA_FAKE asks for them)")} {}

void FakeBatteryBackend::setReading(std::optional<BatteryStatus> reading) {
  if (reading == reading_) return;
  reading_ = reading;
  emit readingChanged();
}

void FakeBatteryBackend::setCheck(ServiceCheck check) {
  if (check == check_) return;
  check_ = std::move(check);
  emit checkChanged();
}

}  // namespace tindra
