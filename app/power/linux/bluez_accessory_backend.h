// BlueZAccessoryBackend: the Bluetooth accessories on the desktop. BlueZ (org.bluez on the system
// bus) says which devices exist and are connected, with their name, class, icon and modalias,
// and their battery where it offers org.bluez.Battery1; UPower's peripheral devices add the
// battery of headsets that report there instead (when BlueZ's battery interface is off), matched
// by the Bluetooth address. Everything is read once when a service appears and then followed by
// signals (InterfacesAdded/Removed, PropertiesChanged, DeviceAdded/Removed); nothing is polled.
// Properties of the wrong type count as missing; a device that vanishes takes its notices along.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>
#include <map>
#include <optional>
#include <vector>

#include "base/dbus/dbus_service_follower.h"
#include "power/accessory_backend.h"

namespace tindra {

class BlueZAccessoryBackend final : public AccessoryBackend {
  Q_OBJECT

 public:
  explicit BlueZAccessoryBackend(QDBusConnection bus, QObject* parent = nullptr);

  void start() override;
  bool ready() const override { return ready_; }

  // One BlueZ device's properties (and Battery1 percentage, if any) as an accessory.
  static BluetoothAccessory accessoryOf(const QVariantMap& device, std::optional<int> battery);

 private:
  struct Device {
    QVariantMap properties;      // org.bluez.Device1
    std::optional<int> battery;  // org.bluez.Battery1's Percentage
  };
  struct Peripheral {
    std::string address;
    std::optional<int> battery;
  };

  void followBlueZ();
  void followUPower();
  void readBlueZ();
  void readUPower();
  void readPeripheral(const QString& path);
  void onBlueZSignal(const QDBusMessage& message);
  void onUPowerSignal(const QDBusMessage& message);
  void applyInterfaces(const QString& path, const QMap<QString, QVariantMap>& interfaces);
  void removeInterfaces(const QString& path, const QStringList& interfaces);
  void applyProperties(const QString& path, const QString& interface, const QVariantMap& changes);
  // BlueZ answered, or it is known that it will not: publishes the devices, and tells of the
  // first answer even when it changes nothing.
  void answered();
  // Publishes the connected devices, each with its battery from BlueZ or else UPower; whether
  // they changed.
  bool update();
  std::vector<BluetoothAccessory> merged() const;

  DBusServiceFollower bluez_;
  DBusServiceFollower upower_;
  std::map<QString, Device> devices_;  // by object path
  // BlueZ's signals that arrived while its objects were being read, applied over the answer:
  // Qt may hand over the answer after signals BlueZ sent later.
  std::optional<std::vector<QDBusMessage>> whileReading_;
  std::map<QString, Peripheral> peripherals_;  // UPower's, by object path
  bool ready_ = false;
};

}  // namespace tindra
