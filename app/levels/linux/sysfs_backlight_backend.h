// SysfsBacklightBackend: the built-in display's backlight. The level is read from
// /sys/class/backlight/<device>/actual_brightness over max_brightness; changes are seen through
// inotify on the device's files (a write through sysfs, or the kernel announcing a hotkey
// change), never by polling. Writes go through logind's SetBrightness on the user's own session,
// which needs no root; logind is followed as it comes and goes. With no backlight the keys stay
// with the desktop; without logind the level is only shown.
#pragma once

#include <QDBusConnection>
#include <QFileSystemWatcher>

#include "base/dbus/dbus_service_follower.h"
#include "levels/backlight_backend.h"

namespace tindra {

class SysfsBacklightBackend final : public BacklightBackend {
  Q_OBJECT

 public:
  static constexpr auto defaultFolder = "/sys/class/backlight";

  SysfsBacklightBackend(QString folder, QDBusConnection systemBus, QObject* parent = nullptr);

  void start() override;
  void setLevel(double level) override;

  // The device the desktop would use: firmware interfaces before platform ones before raw
  // driver ones, then by name. Empty when there is none.
  static QString pickDevice(const QString& folder);

 private:
  void read();

  QString folder_;
  DBusServiceFollower logind_;
  QString device_;
  int maximum_ = 0;
  QFileSystemWatcher watcher_;
};

}  // namespace tindra
