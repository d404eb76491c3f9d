#include "power/linux/bluez_accessory_backend.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <cmath>
#include <utility>

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_object_manager.h"
#include "base/dbus/dbus_reply.h"
#include "power/bluetooth_accessory_kind.h"
#include "power/bluetooth_address.h"
#include "power/bluez_device_info.h"

namespace tindra {

namespace {

const QString bluezService = QStringLiteral("org.bluez");
const QString deviceInterface = QStringLiteral("org.bluez.Device1");
const QString batteryInterface = QStringLiteral("org.bluez.Battery1");
const QString propertiesChanged = QStringLiteral("PropertiesChanged");
const QString percentageKey = QStringLiteral("Percentage");

// A percentage as BlueZ (a byte) or UPower (a double) sends it; none outside 0 ... 100.
std::optional<int> percentage(const QVariant& value) {
  std::optional<double> number = dbus::typed<double>(value);
  if (!number) number = dbus::typed<int>(value);
  if (!number || !(*number >= 0 && *number <= 100)) return std::nullopt;
  return static_cast<int>(std::lround(*number));
}

std::optional<std::string> addressOf(const std::optional<QString>& text) {
  return text ? BluetoothAddress::normalized(text->toStdString()) : std::nullopt;
}

QString pathArgument(const QDBusMessage& message) {
  return dbus::argument<QDBusObjectPath>(message).value_or(QDBusObjectPath()).path();
}

}  // namespace

BlueZAccessoryBackend::BlueZAccessoryBackend(QDBusConnection bus, QObject* parent)
    : AccessoryBackend(parent),
      bluez_(bus, bluezService, {}, DBusServiceFollower::Activation::start),
      upower_(bus, dbus::upowerService, {}, DBusServiceFollower::Activation::start) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("asking BlueZ for the accessories"), tr));
  qDBusRegisterMetaType<InterfaceMap>();
  qDBusRegisterMetaType<ManagedObjects>();
  followBlueZ();
  followUPower();
}

void BlueZAccessoryBackend::start() {
  bluez_.followSignal(QStringLiteral("/"), dbus::objectManager, QStringLiteral("InterfacesAdded"));
  bluez_.followSignal(QStringLiteral("/"), dbus::objectManager,
                      QStringLiteral("InterfacesRemoved"));
  bluez_.followSignal(QString(), dbus::properties, propertiesChanged);  // every device's
  upower_.followSignal(dbus::upowerPath, dbus::upowerService, QStringLiteral("DeviceAdded"));
  upower_.followSignal(dbus::upowerPath, dbus::upowerService, QStringLiteral("DeviceRemoved"));
  upower_.followSignal(QString(), dbus::properties, propertiesChanged);
  bluez_.start();
  upower_.start();
}

void BlueZAccessoryBackend::followBlueZ() {
  connect(&bluez_, &DBusServiceFollower::appeared, this, &BlueZAccessoryBackend::readBlueZ);
  connect(&bluez_, &DBusServiceFollower::signalReceived, this,
          &BlueZAccessoryBackend::onBlueZSignal);
  connect(&bluez_, &DBusServiceFollower::missing, this, [this](const QDBusError& error) {
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("BlueZ does not answer (%1): no accessories are shown"), tr)
                 .arg(error.name()));
    answered();
  });
  connect(&bluez_, &DBusServiceFollower::vanished, this, [this] {
    devices_.clear();
    whileReading_.reset();
    setCheck(
        DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("BlueZ went away: no accessories are shown until it returns"), tr));
    answered();
  });
}

// UPower is optional here: without it, only BlueZ's batteries are shown.
void BlueZAccessoryBackend::followUPower() {
  connect(&upower_, &DBusServiceFollower::appeared, this, &BlueZAccessoryBackend::readUPower);
  connect(&upower_, &DBusServiceFollower::signalReceived, this,
          &BlueZAccessoryBackend::onUPowerSignal);
  connect(&upower_, &DBusServiceFollower::vanished, this, [this] {
    peripherals_.clear();
    update();
  });
}

void BlueZAccessoryBackend::readBlueZ() {
  const QDBusMessage call = QDBusMessage::createMethodCall(
      bluezService, QStringLiteral("/"), dbus::objectManager, QStringLiteral("GetManagedObjects"));
  whileReading_.emplace();
  bluez_.call(call, [this](const QDBusMessage& answer) {
    const std::optional<ManagedObjects> objects = dbus::argument<ManagedObjects>(answer);
    std::vector<QDBusMessage> later =
        std::move(whileReading_).value_or(std::vector<QDBusMessage>());
    whileReading_.reset();
    if (!objects) {
      setCheck(DiagnosticsLog::Outcome::degraded,
               Sentence(QT_TR_NOOP("BlueZ does not answer (%1): no accessories are shown"), tr)
                   .arg(answer.errorName()));
      answered();
      return;
    }
    devices_.clear();
    for (auto object = objects->begin(); object != objects->end(); ++object) {
      applyInterfaces(object.key().path(), object.value());
    }
    for (const QDBusMessage& message : later) onBlueZSignal(message);
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("following BlueZ: %1 Bluetooth devices known"), tr)
                 .arg(devices_.size()));
    answered();
  });
}

void BlueZAccessoryBackend::answered() {
  const bool first = !std::exchange(ready_, true);
  if (!update() && first) emit changed();  // ready, with the same devices as before
}

void BlueZAccessoryBackend::onBlueZSignal(const QDBusMessage& message) {
  if (whileReading_) {
    whileReading_->push_back(message);
    return;
  }
  const QString& member = message.member();
  if (member == QLatin1String("InterfacesAdded")) {
    applyInterfaces(pathArgument(message),
                    dbus::argument<InterfaceMap>(message, 1).value_or(InterfaceMap()));
  } else if (member == QLatin1String("InterfacesRemoved")) {
    removeInterfaces(pathArgument(message),
                     dbus::argument<QStringList>(message, 1).value_or(QStringList()));
  } else if (member == propertiesChanged) {
    applyProperties(message.path(), dbus::argument<QString>(message).value_or(QString()),
                    dbus::argument<QVariantMap>(message, 1).value_or(QVariantMap()));
    return;
  }
  update();
}

void BlueZAccessoryBackend::applyInterfaces(const QString& path, const InterfaceMap& interfaces) {
  if (interfaces.contains(deviceInterface)) {
    devices_[path].properties = interfaces.value(deviceInterface);
  }
  const auto device = devices_.find(path);
  if (interfaces.contains(batteryInterface) && device != devices_.end()) {
    device->second.battery = percentage(interfaces.value(batteryInterface).value(percentageKey));
  }
}

void BlueZAccessoryBackend::removeInterfaces(const QString& path, const QStringList& interfaces) {
  if (interfaces.contains(deviceInterface)) {
    devices_.erase(path);
  } else if (const auto device = devices_.find(path);
             interfaces.contains(batteryInterface) && device != devices_.end()) {
    device->second.battery.reset();
  }
}

void BlueZAccessoryBackend::applyProperties(const QString& path, const QString& interface,
                                            const QVariantMap& changes) {
  const auto device = devices_.find(path);
  if (device == devices_.end()) return;
  if (interface == deviceInterface) {
    device->second.properties.insert(changes);
  } else if (interface == batteryInterface && changes.contains(percentageKey)) {
    device->second.battery = percentage(changes.value(percentageKey));
  } else {
    return;
  }
  update();
}

void BlueZAccessoryBackend::readUPower() {
  const QDBusMessage call =
      QDBusMessage::createMethodCall(dbus::upowerService, dbus::upowerPath, dbus::upowerService,
                                     QStringLiteral("EnumerateDevices"));
  upower_.call(call, [this](const QDBusMessage& answer) {
    for (const QDBusObjectPath& path :
         dbus::argument<QList<QDBusObjectPath>>(answer).value_or(QList<QDBusObjectPath>())) {
      readPeripheral(path.path());
    }
  });
}

// A UPower device that carries a Bluetooth address: a peripheral's battery.
void BlueZAccessoryBackend::readPeripheral(const QString& path) {
  QDBusMessage call = QDBusMessage::createMethodCall(dbus::upowerService, path, dbus::properties,
                                                     QStringLiteral("GetAll"));
  call << dbus::upowerDevice;
  upower_.call(call, [this, path](const QDBusMessage& answer) {
    const QVariantMap properties = dbus::argument<QVariantMap>(answer).value_or(QVariantMap());
    std::optional<std::string> address =
        addressOf(dbus::typed<QString>(properties, QStringLiteral("Serial")));
    if (!address) {
      // "/org/bluez/hci0/dev_AA_BB_CC_DD_EE_FF"
      const QString native =
          dbus::typed<QString>(properties, QStringLiteral("NativePath")).value_or(QString());
      address = addressOf(native.section(QStringLiteral("dev_"), -1));
    }
    if (!address) return;
    peripherals_[path] = {*address, percentage(properties.value(percentageKey))};
    update();
  });
}

void BlueZAccessoryBackend::onUPowerSignal(const QDBusMessage& message) {
  const QString& member = message.member();
  if (member == QLatin1String("DeviceAdded")) {
    readPeripheral(pathArgument(message));
  } else if (member == QLatin1String("DeviceRemoved")) {
    if (peripherals_.erase(pathArgument(message)) > 0) update();
  } else if (member == propertiesChanged &&
             dbus::argument<QString>(message) == dbus::upowerDevice) {
    const auto peripheral = peripherals_.find(message.path());
    const QVariantMap changes = dbus::argument<QVariantMap>(message, 1).value_or(QVariantMap());
    if (peripheral != peripherals_.end() && changes.contains(percentageKey)) {
      peripheral->second.battery = percentage(changes.value(percentageKey));
      update();
    }
  }
}

BluetoothAccessory BlueZAccessoryBackend::accessoryOf(const QVariantMap& device,
                                                      std::optional<int> battery) {
  BluetoothAccessory accessory;
  const std::optional<QString> alias = dbus::typed<QString>(device, QStringLiteral("Alias"));
  const std::optional<QString> name = dbus::typed<QString>(device, QStringLiteral("Name"));
  accessory.name = (alias && !alias->isEmpty() ? *alias : name.value_or(QString())).toStdString();
  accessory.address = addressOf(dbus::typed<QString>(device, QStringLiteral("Address")));
  const std::optional<std::uint32_t> deviceClass =
      dbus::typed<uint>(device, QStringLiteral("Class"));
  const std::string icon =
      dbus::typed<QString>(device, QStringLiteral("Icon")).value_or(QString()).toStdString();
  accessory.minorType = BlueZDeviceClass::minorType(deviceClass, icon);
  if (const auto modalias =
          BlueZModalias::parse(dbus::typed<QString>(device, QStringLiteral("Modalias"))
                                   .value_or(QString())
                                   .toStdString())) {
    accessory.vendorID = modalias->vendorID;
    accessory.productID = modalias->productID;
  }
  accessory.kind =
      classifyBluetoothAccessory(accessory.name, accessory.minorType, accessory.vendorID,
                                 accessory.productID, BlueZDeviceClass::isAudio(deviceClass, icon));
  accessory.battery.main = battery;
  return accessory;
}

bool BlueZAccessoryBackend::update() {
  return publish(merged());
}

std::vector<BluetoothAccessory> BlueZAccessoryBackend::merged() const {
  std::vector<BluetoothAccessory> result;
  for (const auto& [path, device] : devices_) {
    if (!dbus::typed<bool>(device.properties, QStringLiteral("Connected")).value_or(false))
      continue;
    BluetoothAccessory accessory = accessoryOf(device.properties, device.battery);
    if (!accessory.battery.main && accessory.address) {
      for (const auto& entry : peripherals_) {
        const Peripheral& peripheral = entry.second;
        if (peripheral.address == *accessory.address) accessory.battery.main = peripheral.battery;
      }
    }
    result.push_back(std::move(accessory));
  }
  return result;
}

}  // namespace tindra
