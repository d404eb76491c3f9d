#include "power/linux/upower_battery_backend.h"

#include <algorithm>

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_value.h"

namespace tindra {

namespace {

const QString displayDevice = QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice");
const QString profilesService = QStringLiteral("net.hadess.PowerProfiles");
const QString profilesPath = QStringLiteral("/net/hadess/PowerProfiles");

}  // namespace

UPowerBatteryBackend::UPowerBatteryBackend(QDBusConnection bus, QObject* parent)
    : BatteryBackend(parent),
      upower_(bus, dbus::upowerService, {{displayDevice, dbus::upowerDevice}},
              DBusServiceFollower::Activation::start),
      profiles_(bus, profilesService, {{profilesPath, profilesService}},
                DBusServiceFollower::Activation::start) {
  battery_ = {DiagnosticsLog::Outcome::ok,
              Sentence(QT_TR_NOOP("asking UPower for the battery"), tr)};
  showCheck();
  followUPower();
  followProfiles();
}

void UPowerBatteryBackend::start() {
  upower_.start();
  profiles_.start();
}

void UPowerBatteryBackend::followUPower() {
  connect(&upower_, &DBusServiceFollower::read, this, [this](const QVariantMap& properties) {
    device_ = UPowerDevice{};
    apply(properties);
    battery_ = {DiagnosticsLog::Outcome::ok,
                reading() ? Sentence(QT_TR_NOOP("reading the battery from UPower"), tr)
                          : Sentence(QT_TR_NOOP("UPower answers and reports no battery"), tr)};
    showCheck();
  });
  connect(&upower_, &DBusServiceFollower::changed, this, &UPowerBatteryBackend::apply);
  const auto doesNotAnswer = [this](const QDBusError& error) {
    drop(Sentence(QT_TR_NOOP("UPower does not answer (%1): no battery is shown"), tr)
             .arg(error.name()));
  };
  connect(&upower_, &DBusServiceFollower::missing, this, doesNotAnswer);
  connect(&upower_, &DBusServiceFollower::readFailed, this, doesNotAnswer);
  connect(&upower_, &DBusServiceFollower::vanished, this, [this] {
    drop(Sentence(QT_TR_NOOP("UPower went away: no battery is shown until it returns"), tr));
  });
}

// No power-profiles-daemon, or none that answers: no low power mode to show. Many machines have
// none, so its absence is only said; its leaving, or not answering, is a fault until it is back.
void UPowerBatteryBackend::followProfiles() {
  const auto profileOf = [](const QVariantMap& properties) {
    return dbus::typed<QString>(properties, QStringLiteral("ActiveProfile"));
  };
  connect(&profiles_, &DBusServiceFollower::read, this, [this, profileOf](const QVariantMap& read) {
    setProfilesCheck({});
    setPowerSaver(profileOf(read) == QLatin1String("power-saver"));
  });
  connect(&profiles_, &DBusServiceFollower::changed, this,
          [this, profileOf](const QVariantMap& changed) {
            if (const auto profile = profileOf(changed)) {
              setPowerSaver(*profile == QLatin1String("power-saver"));
            }
          });
  const auto none = [this](DiagnosticsLog::Outcome outcome, const Sentence& why) {
    setProfilesCheck(ServiceCheck{outcome, why});
    setPowerSaver(false);
  };
  connect(&profiles_, &DBusServiceFollower::missing, this, [none] {
    none(DiagnosticsLog::Outcome::ok,
         Sentence(QT_TR_NOOP("no power-profiles-daemon: low power mode is not shown"), tr));
  });
  connect(&profiles_, &DBusServiceFollower::readFailed, this, [none](const QDBusError& error) {
    none(DiagnosticsLog::Outcome::degraded,
         Sentence(QT_TR_NOOP("power-profiles-daemon does not answer (%1): low power mode is not "
                             "shown"),
                  tr)
             .arg(error.name()));
  });
  connect(&profiles_, &DBusServiceFollower::vanished, this, [none] {
    none(DiagnosticsLog::Outcome::degraded,
         Sentence(QT_TR_NOOP("power-profiles-daemon went away: low power mode is not shown until "
                             "it returns"),
                  tr));
  });
}

void UPowerBatteryBackend::setProfilesCheck(std::optional<ServiceCheck> check) {
  profilesCheck_ = std::move(check);
  showCheck();
}

// One line for both services, the battery's first; the worse of the two outcomes.
void UPowerBatteryBackend::showCheck() {
  if (!profilesCheck_) {
    setCheck(battery_.outcome, battery_.text);
    return;
  }
  setCheck(std::max(battery_.outcome, profilesCheck_->outcome),
           battery_.text.followedBy(profilesCheck_->text));
}

void UPowerBatteryBackend::setPowerSaver(bool powerSaver) {
  powerSaver_ = powerSaver;
  publish(device_.batteryStatus(powerSaver_));
}

void UPowerBatteryBackend::drop(const Sentence& why) {
  device_ = UPowerDevice{};  // a profile change must not bring the old battery back
  battery_ = {DiagnosticsLog::Outcome::degraded, why};
  showCheck();
  publish(std::nullopt);
}

void UPowerBatteryBackend::apply(const QVariantMap& properties) {
  dbus::take(properties, QStringLiteral("Type"), device_.type);
  dbus::take(properties, QStringLiteral("State"), device_.state);
  dbus::take(properties, QStringLiteral("Percentage"), device_.percentage);
  dbus::take(properties, QStringLiteral("IsPresent"), device_.isPresent);
  dbus::take(properties, QStringLiteral("TimeToEmpty"), device_.timeToEmpty);
  dbus::take(properties, QStringLiteral("TimeToFull"), device_.timeToFull);
  publish(device_.batteryStatus(powerSaver_));
}

}  // namespace tindra
