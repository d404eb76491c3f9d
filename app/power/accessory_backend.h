// AccessoryBackend: the connected Bluetooth accessories, each with its kind and its batteries
// merged from every source the platform has, reported as they change.
// AccessoryBackend::Null is the do-nothing backend of a session without Bluetooth to ask.
#pragma once

#include <memory>
#include <vector>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "power/bluetooth_accessory.h"

namespace tindra {

class AccessoryBackend : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<AccessoryBackend>;

  // This platform's accessory backend: the real one, or the do-nothing one where the service
  // cannot be there (made in the platform's folder).
  static std::unique_ptr<AccessoryBackend> forPlatform(SharedBackends& shared);

  const std::vector<BluetoothAccessory>& connected() const { return connected_; }
  // Whether the first full reading is in (or it is known there is none), so that the devices
  // connected before Tindra started are told apart from ones connecting now.
  virtual bool ready() const { return true; }

 signals:
  void changed();

 protected:
  // Whether the list changed (and `changed` was emitted).
  bool publish(std::vector<BluetoothAccessory> connected) {
    if (!assignIfChanged(connected_, std::move(connected))) return false;
    emit changed();
    return true;
  }

 private:
  std::vector<BluetoothAccessory> connected_;
};

}  // namespace tindra
