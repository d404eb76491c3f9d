// FakeAccessoryBackend: invented accessories for the demo and tests, only when TINDRA_FAKE names
// "accessories": a pair of earbuds with their case connected from the start.
#pragma once

#include "power/accessory_backend.h"

namespace tindra {

class FakeAccessoryBackend final : public AccessoryBackend {
  Q_OBJECT

 public:
  explicit FakeAccessoryBackend(QObject* parent = nullptr) : AccessoryBackend(parent) {
    publish({inventedBuds()});
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("invented accessories (TINDRA_FAKE asks for them)"), tr));
  }

  // The earbuds connected from the start; the demo moves the invented sound to them.
  static BluetoothAccessory inventedBuds() {
    BluetoothAccessory buds;
    buds.name = "Invented Buds";
    buds.address = "0a:00:00:00:00:01";
    buds.kind = BluetoothAccessoryKind::airPodsPro;
    buds.battery = {80, 76, 45, std::nullopt};
    return buds;
  }

  void start() override {}

  void setConnected(std::vector<BluetoothAccessory> connected) { publish(std::move(connected)); }
};

}  // namespace tindra
