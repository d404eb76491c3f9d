#include "power/linux/upower_battery_backend.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <utility>

#include "base/assign_if_changed.h"
#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString displayDevice = QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice");
const QString profilesService = QStringLiteral("net.hadess.PowerProfiles");
const QString profilesPath = QStringLiteral("/net/hadess/PowerProfiles");

bool isSignedOrSmallInteger(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
      return true;
    default:
      return false;
  }
}

// Copies a property into `field` when the service sent something of the right kind; anything
// else keeps the previous value rather than inventing one.
template <typename T>
void take(const QVariantMap& properties, const char* name, T& field) {
  const auto found = properties.constFind(QLatin1String(name));
  if (found == properties.constEnd()) return;
  const QVariant& value = *found;
  if constexpr (std::is_same_v<T, bool>) {
    if (value.typeId() == QMetaType::Bool) field = value.toBool();
  } else if constexpr (std::is_same_v<T, double>) {
    if (value.typeId() == QMetaType::Double) field = value.toDouble();
  } else if (value.typeId() == QMetaType::ULongLong) {
    if (const qulonglong number = value.toULongLong(); std::in_range<T>(number)) field = number;
  } else if (isSignedOrSmallInteger(value)) {
    if (const qlonglong number = value.toLongLong(); std::in_range<T>(number)) field = number;
  }
}

}  // namespace

UPowerBatteryBackend::UPowerBatteryBackend(QDBusConnection bus, QObject* parent)
    : BatteryBackend(parent),
      bus_(std::move(bus)),
      watcher_(
          dbus::upowerService, bus_,
          QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration),
      profilesWatcher_(
          profilesService, bus_,
          QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration) {
  setCheck(DiagnosticsLog::Outcome::ok, Sentence(QT_TR_NOOP("asking UPower for the battery"), tr));
}

void UPowerBatteryBackend::start() {
  bus_.connect(dbus::upowerService, displayDevice, dbus::properties,
               QStringLiteral("PropertiesChanged"), this,
               SLOT(onPropertiesChanged(QString, QVariantMap, QStringList)));
  connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, &UPowerBatteryBackend::readAll);
  connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this,
          &UPowerBatteryBackend::onServiceGone);
  bus_.connect(profilesService, profilesPath, dbus::properties, QStringLiteral("PropertiesChanged"),
               this, SLOT(onProfilesChanged(QString, QVariantMap, QStringList)));
  connect(&profilesWatcher_, &QDBusServiceWatcher::serviceRegistered, this,
          &UPowerBatteryBackend::readProfile);
  connect(&profilesWatcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    powerSaver_ = false;
    publish(device_.batteryStatus(powerSaver_));
  });
  readAll();
  readProfile();
}

void UPowerBatteryBackend::readProfile() {
  QDBusMessage call = QDBusMessage::createMethodCall(profilesService, profilesPath,
                                                     dbus::properties, QStringLiteral("Get"));
  call << profilesService << QStringLiteral("ActiveProfile");
  whenAnswered(bus_.asyncCall(call), this, [this](const QDBusMessage& answer) {
    // No power-profiles-daemon: no low power mode to show.
    const QVariant profile = answer.type() == QDBusMessage::ReplyMessage
                                 ? answer.arguments().value(0).value<QDBusVariant>().variant()
                                 : QVariant();
    onProfilesChanged(profilesService, {{QStringLiteral("ActiveProfile"), profile}}, {});
  });
}

void UPowerBatteryBackend::onProfilesChanged(const QString& interface, const QVariantMap& changed,
                                             const QStringList&) {
  const auto profile = changed.constFind(QStringLiteral("ActiveProfile"));
  if (interface != profilesService || profile == changed.constEnd()) return;
  powerSaver_ = profile->toString() == QLatin1String("power-saver");
  publish(device_.batteryStatus(powerSaver_));
}

void UPowerBatteryBackend::readAll() {
  QDBusMessage call = QDBusMessage::createMethodCall(dbus::upowerService, displayDevice,
                                                     dbus::properties, QStringLiteral("GetAll"));
  call << dbus::upowerDevice;
  auto* pending = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
  connect(pending, &QDBusPendingCallWatcher::finished, this, &UPowerBatteryBackend::onReadAll);
}

void UPowerBatteryBackend::onReadAll(QDBusPendingCallWatcher* call) {
  call->deleteLater();
  const QDBusPendingReply<QVariantMap> reply = *call;
  if (reply.isError()) {
    // Not running now; the watcher reads again when it starts.
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("UPower does not answer (%1): no battery is shown"), tr)
                 .arg(reply.error().name()));
    publish(std::nullopt);
    return;
  }
  device_ = UPowerDevice{};
  apply(reply.value());
  setCheck(DiagnosticsLog::Outcome::ok,
           reading() ? Sentence(QT_TR_NOOP("reading the battery from UPower"), tr)
                     : Sentence(QT_TR_NOOP("UPower answers and reports no battery"), tr));
}

void UPowerBatteryBackend::onServiceGone() {
  setCheck(DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("UPower went away: no battery is shown until it returns"), tr));
  publish(std::nullopt);
}

void UPowerBatteryBackend::onPropertiesChanged(const QString& interface, const QVariantMap& changed,
                                               const QStringList& invalidated) {
  if (interface != dbus::upowerDevice) return;
  if (!invalidated.isEmpty()) {
    readAll();  // UPower says a value changed without sending it
    return;
  }
  apply(changed);
}

void UPowerBatteryBackend::apply(const QVariantMap& properties) {
  take(properties, "Type", device_.type);
  take(properties, "State", device_.state);
  take(properties, "Percentage", device_.percentage);
  take(properties, "IsPresent", device_.isPresent);
  take(properties, "TimeToEmpty", device_.timeToEmpty);
  take(properties, "TimeToFull", device_.timeToFull);
  publish(device_.batteryStatus(powerSaver_));
}

}  // namespace tindra
