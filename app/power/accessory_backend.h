// AccessoryBackend: the connected Bluetooth accessories, each with its kind and its batteries
// merged from every source the platform has, reported as they change (never polled).
#pragma once

#include <QObject>
#include <vector>

#include "base/service_check.h"
#include "power/bluetooth_accessory.h"

namespace tindra {

class AccessoryBackend : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual void start() = 0;
  virtual std::vector<BluetoothAccessory> connected() const = 0;
  virtual ServiceCheck check() const = 0;
  // Whether the first full reading is in (or it is known there is none), so that the devices
  // connected before Tindra started are told apart from ones connecting now.
  virtual bool ready() const { return true; }

 signals:
  void changed();
  void checkChanged();
};

}  // namespace tindra
