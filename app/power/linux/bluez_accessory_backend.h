// BlueZAccessoryBackend: the Bluetooth accessories on the desktop. BlueZ (org.bluez on the system
// bus) says which devices exist and are connected, with their name, class, icon and modalias,
// and their battery where it offers org.bluez.Battery1; UPower's peripheral devices add the
// battery of headsets that report there instead (when BlueZ's battery interface is off), matched
// by the Bluetooth address. Everything is read once when a service appears and then followed by
// signals (InterfacesAdded/Removed, PropertiesChanged, DeviceAdded/Removed); nothing is polled.
// Properties of the wrong type count as missing; a device that vanishes takes its notices along.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QVariantMap>
#include <map>

#include "power/accessory_backend.h"

class QDBusMessage;

namespace tindra {

class BlueZAccessoryBackend final : public AccessoryBackend {
  Q_OBJECT

 public:
  explicit BlueZAccessoryBackend(QDBusConnection bus, QObject* parent = nullptr);

  void start() override;
  bool ready() const override { return ready_; }

  // One BlueZ device's properties (and Battery1 percentage, if any) as an accessory.
  static BluetoothAccessory accessoryOf(const QVariantMap& device, std::optional<int> battery);

 private slots:
  void onInterfacesAdded(const QDBusMessage& message);
  void onInterfacesRemoved(const QDBusMessage& message);
  void onBlueZProperties(const QDBusMessage& message);
  void onUPowerDeviceAdded(const QDBusMessage& message);
  void onUPowerDeviceRemoved(const QDBusMessage& message);
  void onUPowerProperties(const QDBusMessage& message);

 private:
  struct Device {
    QVariantMap properties;      // org.bluez.Device1
    std::optional<int> battery;  // org.bluez.Battery1's Percentage
  };
  struct Peripheral {
    std::string address;
    std::optional<int> battery;
  };

  void readBlueZ();
  void readUPower();
  void readPeripheral(const QString& path);
  void applyInterfaces(const QString& path, const QVariant& interfaces);
  // Publishes the connected devices, each with its battery from BlueZ or else UPower; whether
  // they changed.
  bool update();
  std::vector<BluetoothAccessory> merged() const;

  QDBusConnection bus_;
  QDBusServiceWatcher bluez_;
  QDBusServiceWatcher upower_;
  std::map<QString, Device> devices_;          // by object path
  std::map<QString, Peripheral> peripherals_;  // UPower's, by object path
  bool ready_ = false;
};

}  // namespace tindra
