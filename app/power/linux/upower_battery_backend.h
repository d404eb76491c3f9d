// UPowerBatteryBackend: the battery as UPower's display device reports it on the system bus (the
// composite UPower makes of every battery that powers the machine). It reads all properties once
// when UPower appears and then follows PropertiesChanged; when UPower goes away the reading is
// dropped and the check says so, and it comes back with the service. Low power mode is
// power-profiles-daemon's "power-saver" profile, followed the same way; the check tells of both.
#pragma once

#include <QDBusConnection>
#include <QVariantMap>
#include <optional>

#include "base/dbus/dbus_service_follower.h"
#include "power/battery_backend.h"
#include "power/upower_device.h"

namespace tindra {

class UPowerBatteryBackend final : public BatteryBackend {
  Q_OBJECT

 public:
  explicit UPowerBatteryBackend(QDBusConnection bus, QObject* parent = nullptr);

  void start() override;

 private:
  void followUPower();
  void followProfiles();
  // UPower is not there, or does not answer: no battery.
  void drop(const Sentence& why);
  void apply(const QVariantMap& properties);
  void setPowerSaver(bool powerSaver);
  // What power-profiles-daemon adds to the check; none while it answers.
  void setProfilesCheck(std::optional<ServiceCheck> check);
  void showCheck();

  DBusServiceFollower upower_;
  DBusServiceFollower profiles_;
  UPowerDevice device_;
  bool powerSaver_ = false;
  ServiceCheck battery_;
  std::optional<ServiceCheck> profilesCheck_;
};

}  // namespace tindra
