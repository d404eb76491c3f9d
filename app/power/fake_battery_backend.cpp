#include "power/fake_battery_backend.h"

namespace tindra {

FakeBatteryBackend::FakeBatteryBackend(QObject* parent) : BatteryBackend(parent) {
  publish(BatteryStatus(76, false, false, false, 192));
  setCheck(DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("invented readings (TINDRA_FAKE asks for them)"), tr));
}

}  // namespace tindra
