#include "power/linux/bluez_accessory_backend.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>

#include "base/assign_if_changed.h"
#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"
#include "power/bluetooth_accessory_kind.h"
#include "power/bluetooth_address.h"
#include "power/bluez_device_info.h"

using InterfaceMap = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, InterfaceMap>;
Q_DECLARE_METATYPE(InterfaceMap)
Q_DECLARE_METATYPE(ManagedObjects)

namespace tindra {

namespace {

const QString bluezService = QStringLiteral("org.bluez");
const QString deviceInterface = QStringLiteral("org.bluez.Device1");
const QString batteryInterface = QStringLiteral("org.bluez.Battery1");
const QString objectManager = QStringLiteral("org.freedesktop.DBus.ObjectManager");

// A value of the expected type, else none: everything here comes from another process.
template <class T>
std::optional<T> typed(const QVariantMap& map, const QString& key) {
  const auto found = map.constFind(key);
  if (found == map.constEnd() || found->metaType() != QMetaType::fromType<T>()) return std::nullopt;
  return found->value<T>();
}

// A percentage as BlueZ (a byte) or UPower (a double) sends it; none outside 0 ... 100.
std::optional<int> percentage(const QVariant& value) {
  bool ok = false;
  const double number = value.toDouble(&ok);
  const bool numeric = value.metaType() == QMetaType::fromType<uchar>() ||
                       value.metaType() == QMetaType::fromType<double>() ||
                       value.metaType() == QMetaType::fromType<int>() ||
                       value.metaType() == QMetaType::fromType<uint>();
  if (!numeric || !ok || !(number >= 0 && number <= 100)) return std::nullopt;
  return static_cast<int>(std::lround(number));
}

template <class T>
T argument(const QDBusMessage& message, int index) {
  const QVariant value = message.arguments().value(index);
  if (value.canConvert<QDBusArgument>()) return qdbus_cast<T>(value.value<QDBusArgument>());
  return value.value<T>();
}

std::optional<std::string> addressOf(const std::optional<QString>& text) {
  return text ? BluetoothAddress::normalized(text->toStdString()) : std::nullopt;
}

}  // namespace

BlueZAccessoryBackend::BlueZAccessoryBackend(QDBusConnection bus, QObject* parent)
    : AccessoryBackend(parent),
      bus_(std::move(bus)),
      bluez_(
          bluezService, bus_,
          QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration),
      upower_(
          dbus::upowerService, bus_,
          QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("asking BlueZ for the accessories"), tr));
  qDBusRegisterMetaType<InterfaceMap>();
  qDBusRegisterMetaType<ManagedObjects>();
}

void BlueZAccessoryBackend::start() {
  bus_.connect(bluezService, QStringLiteral("/"), objectManager, QStringLiteral("InterfacesAdded"),
               this, SLOT(onInterfacesAdded(QDBusMessage)));
  bus_.connect(bluezService, QStringLiteral("/"), objectManager,
               QStringLiteral("InterfacesRemoved"), this, SLOT(onInterfacesRemoved(QDBusMessage)));
  // Every device's changes, whatever its path.
  bus_.connect(bluezService, QString(), dbus::properties, QStringLiteral("PropertiesChanged"), this,
               SLOT(onBlueZProperties(QDBusMessage)));
  bus_.connect(dbus::upowerService, dbus::upowerPath, dbus::upowerService,
               QStringLiteral("DeviceAdded"), this, SLOT(onUPowerDeviceAdded(QDBusMessage)));
  bus_.connect(dbus::upowerService, dbus::upowerPath, dbus::upowerService,
               QStringLiteral("DeviceRemoved"), this, SLOT(onUPowerDeviceRemoved(QDBusMessage)));
  bus_.connect(dbus::upowerService, QString(), dbus::properties,
               QStringLiteral("PropertiesChanged"), this, SLOT(onUPowerProperties(QDBusMessage)));
  connect(&bluez_, &QDBusServiceWatcher::serviceRegistered, this,
          &BlueZAccessoryBackend::readBlueZ);
  connect(&bluez_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    devices_.clear();
    setCheck(
        DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("BlueZ went away: no accessories are shown until it returns"), tr));
    update();
  });
  connect(&upower_, &QDBusServiceWatcher::serviceRegistered, this,
          &BlueZAccessoryBackend::readUPower);
  connect(&upower_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    peripherals_.clear();
    update();
  });
  readBlueZ();
  readUPower();
}

void BlueZAccessoryBackend::readBlueZ() {
  const QDBusMessage call = QDBusMessage::createMethodCall(
      bluezService, QStringLiteral("/"), objectManager, QStringLiteral("GetManagedObjects"));
  whenAnswered(bus_.asyncCall(call), this, [this](const QDBusMessage& answer) {
    const bool first = !ready_;
    ready_ = true;
    if (answer.type() != QDBusMessage::ReplyMessage) {
      setCheck(DiagnosticsLog::Outcome::degraded,
               Sentence(QT_TR_NOOP("BlueZ does not answer (%1): no accessories are shown"), tr)
                   .arg(answer.errorName()));
      if (first) emit changed();  // ready, with nothing to show
      return;
    }
    devices_.clear();
    const ManagedObjects objects = argument<ManagedObjects>(answer, 0);
    for (auto object = objects.begin(); object != objects.end(); ++object) {
      applyInterfaces(object.key().path(), QVariant::fromValue(object.value()));
    }
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("following BlueZ: %1 Bluetooth devices known"), tr)
                 .arg(devices_.size()));
    if (!update() && first) emit changed();  // ready, with the same devices as before
  });
}

void BlueZAccessoryBackend::applyInterfaces(const QString& path, const QVariant& interfaces) {
  const InterfaceMap map = interfaces.value<InterfaceMap>();
  if (map.contains(deviceInterface)) devices_[path].properties = map.value(deviceInterface);
  if (map.contains(batteryInterface)) {
    const auto device = devices_.find(path);
    if (device != devices_.end()) {
      device->second.battery =
          percentage(map.value(batteryInterface).value(QStringLiteral("Percentage")));
    }
  }
}

void BlueZAccessoryBackend::onInterfacesAdded(const QDBusMessage& message) {
  const QString path = argument<QDBusObjectPath>(message, 0).path();
  applyInterfaces(path, QVariant::fromValue(argument<InterfaceMap>(message, 1)));
  update();
}

void BlueZAccessoryBackend::onInterfacesRemoved(const QDBusMessage& message) {
  const QString path = argument<QDBusObjectPath>(message, 0).path();
  const QStringList removed = argument<QStringList>(message, 1);
  if (removed.contains(deviceInterface)) {
    devices_.erase(path);
  } else if (removed.contains(batteryInterface)) {
    if (const auto device = devices_.find(path); device != devices_.end()) {
      device->second.battery.reset();
    }
  }
  update();
}

void BlueZAccessoryBackend::onBlueZProperties(const QDBusMessage& message) {
  const auto device = devices_.find(message.path());
  if (device == devices_.end()) return;
  const QString interface = argument<QString>(message, 0);
  const QVariantMap changes = argument<QVariantMap>(message, 1);
  if (interface == deviceInterface) {
    for (auto change = changes.begin(); change != changes.end(); ++change) {
      device->second.properties.insert(change.key(), change.value());
    }
  } else if (interface == batteryInterface && changes.contains(QStringLiteral("Percentage"))) {
    device->second.battery = percentage(changes.value(QStringLiteral("Percentage")));
  } else {
    return;
  }
  update();
}

void BlueZAccessoryBackend::readUPower() {
  const QDBusMessage call =
      QDBusMessage::createMethodCall(dbus::upowerService, dbus::upowerPath, dbus::upowerService,
                                     QStringLiteral("EnumerateDevices"));
  whenAnswered(bus_.asyncCall(call), this, [this](const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ReplyMessage) return;  // UPower is optional here
    for (const QDBusObjectPath& path : argument<QList<QDBusObjectPath>>(answer, 0)) {
      readPeripheral(path.path());
    }
  });
}

// A UPower device that carries a Bluetooth address: a peripheral's battery.
void BlueZAccessoryBackend::readPeripheral(const QString& path) {
  QDBusMessage call = QDBusMessage::createMethodCall(dbus::upowerService, path, dbus::properties,
                                                     QStringLiteral("GetAll"));
  call << dbus::upowerDevice;
  whenAnswered(bus_.asyncCall(call), this, [this, path](const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ReplyMessage) return;
    const QVariantMap properties = argument<QVariantMap>(answer, 0);
    std::optional<std::string> address =
        addressOf(typed<QString>(properties, QStringLiteral("Serial")));
    if (!address) {
      // "/org/bluez/hci0/dev_AA_BB_CC_DD_EE_FF"
      const QString native =
          typed<QString>(properties, QStringLiteral("NativePath")).value_or(QString());
      address = addressOf(native.section(QStringLiteral("dev_"), -1));
    }
    if (!address) return;
    peripherals_[path] = {*address, percentage(properties.value(QStringLiteral("Percentage")))};
    update();
  });
}

void BlueZAccessoryBackend::onUPowerDeviceAdded(const QDBusMessage& message) {
  readPeripheral(argument<QDBusObjectPath>(message, 0).path());
}

void BlueZAccessoryBackend::onUPowerDeviceRemoved(const QDBusMessage& message) {
  if (peripherals_.erase(argument<QDBusObjectPath>(message, 0).path()) > 0) update();
}

void BlueZAccessoryBackend::onUPowerProperties(const QDBusMessage& message) {
  const auto peripheral = peripherals_.find(message.path());
  if (peripheral == peripherals_.end() || argument<QString>(message, 0) != dbus::upowerDevice)
    return;
  const QVariantMap changes = argument<QVariantMap>(message, 1);
  if (!changes.contains(QStringLiteral("Percentage"))) return;
  peripheral->second.battery = percentage(changes.value(QStringLiteral("Percentage")));
  update();
}

BluetoothAccessory BlueZAccessoryBackend::accessoryOf(const QVariantMap& device,
                                                      std::optional<int> battery) {
  BluetoothAccessory accessory;
  const std::optional<QString> alias = typed<QString>(device, QStringLiteral("Alias"));
  const std::optional<QString> name = typed<QString>(device, QStringLiteral("Name"));
  accessory.name = (alias && !alias->isEmpty() ? *alias : name.value_or(QString())).toStdString();
  accessory.address = addressOf(typed<QString>(device, QStringLiteral("Address")));
  const std::optional<std::uint32_t> deviceClass = typed<uint>(device, QStringLiteral("Class"));
  const std::string icon =
      typed<QString>(device, QStringLiteral("Icon")).value_or(QString()).toStdString();
  accessory.minorType = BlueZDeviceClass::minorType(deviceClass, icon);
  if (const auto modalias = BlueZModalias::parse(
          typed<QString>(device, QStringLiteral("Modalias")).value_or(QString()).toStdString())) {
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
    if (!typed<bool>(device.properties, QStringLiteral("Connected")).value_or(false)) continue;
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
