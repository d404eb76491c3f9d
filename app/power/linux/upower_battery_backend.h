// UPowerBatteryBackend: the battery as UPower's display device reports it on the system bus (the
// composite UPower makes of every battery that powers the machine). It reads all properties once
// when UPower appears and then follows PropertiesChanged; when UPower goes away the reading is
// dropped and the check says so, and it comes back with the service. Low power mode is
// power-profiles-daemon's "power-saver" profile, followed the same way.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QVariantMap>

#include "power/battery_backend.h"
#include "power/upower_device.h"

class QDBusPendingCallWatcher;

namespace tindra {

class UPowerBatteryBackend final : public BatteryBackend {
  Q_OBJECT

 public:
  explicit UPowerBatteryBackend(QDBusConnection bus, QObject* parent = nullptr);

  void start() override;

 private slots:
  void onPropertiesChanged(const QString& interface, const QVariantMap& changed,
                           const QStringList& invalidated);
  void onProfilesChanged(const QString& interface, const QVariantMap& changed,
                         const QStringList& invalidated);

 private:
  void readAll();
  void onReadAll(QDBusPendingCallWatcher* call);
  void onServiceGone();
  void apply(const QVariantMap& properties);
  void readProfile();

  QDBusConnection bus_;
  QDBusServiceWatcher watcher_;
  QDBusServiceWatcher profilesWatcher_;
  UPowerDevice device_;
  bool powerSaver_ = false;
};

}  // namespace tindra
