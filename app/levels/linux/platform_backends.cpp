// The level backends on Linux: the sound server's default output through libpulse, the display's
// backlight in /sys/class/backlight written through logind, the keyboard's light through UPower,
// the keys through X11 grabs where the session is an X11 one, and `tindra level` commands on the
// session bus.
#include <QGuiApplication>

#include "base/linux/pulse_connection.h"
#include "base/linux/system_bus.h"
#include "levels/linux/bus_level_command_source.h"
#include "levels/linux/pulse_volume_backend.h"
#include "levels/linux/sysfs_backlight_backend.h"
#include "levels/linux/upower_keyboard_backlight_backend.h"
#include "levels/linux/x11_media_key_source.h"

namespace tindra {

// The volume waits for a sound server that is not there yet and follows one that restarts.
std::unique_ptr<VolumeBackend> VolumeBackend::forPlatform(SharedBackends& shared) {
  return std::make_unique<PulseVolumeBackend>(PulseConnection::shared(shared));
}

// TINDRA_BACKLIGHT_FOLDER stands in for /sys/class/backlight in tests and demos. Without logind
// the light is still shown, and its keys stay with the desktop.
std::unique_ptr<BacklightBackend> BacklightBackend::displayForPlatform(SharedBackends&) {
  return std::make_unique<SysfsBacklightBackend>(
      qEnvironmentVariable("TINDRA_BACKLIGHT_FOLDER", SysfsBacklightBackend::defaultFolder),
      QDBusConnection::systemBus());
}

std::unique_ptr<BacklightBackend> BacklightBackend::keyboardForPlatform(SharedBackends&) {
  return onSystemBus<BacklightBackend::Null>(
      Sentence::in("Backends", QT_TRANSLATE_NOOP("Backends",
                                                 "no system bus (%1): the keyboard light keys "
                                                 "stay with the desktop")),
      [](const QDBusConnection& bus) {
        return std::make_unique<UPowerKeyboardBacklightBackend>(bus);
      });
}

std::unique_ptr<MediaKeySource> MediaKeySource::forPlatform(SharedBackends&) {
  // Under XWayland a grab succeeds but hears nothing while a Wayland window has the focus.
  if (qEnvironmentVariable("XDG_SESSION_TYPE") == QLatin1String("wayland") ||
      qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
    return std::make_unique<MediaKeySource::Null>(Sentence::in(
        "Backends", QT_TRANSLATE_NOOP("Backends",
                                      "a Wayland session lets no program take the keys: the "
                                      "desktop keeps them, and the level changes it makes are "
                                      "shown")));
  }
  if (QGuiApplication::platformName() != QLatin1String("xcb")) {
    return std::make_unique<MediaKeySource::Null>(
        Sentence::in("Backends", QT_TRANSLATE_NOOP("Backends",
                                                   "no X11 display (%1): the keys stay with the "
                                                   "desktop, and the level changes it makes are "
                                                   "shown"))
            .arg(QGuiApplication::platformName()));
  }
  return std::make_unique<X11MediaKeySource>();
}

std::unique_ptr<LevelCommandSource> LevelCommandSource::forPlatform(SharedBackends&) {
  return std::make_unique<BusLevelCommandSource>(QDBusConnection::sessionBus());
}

int LevelCommandSource::sendForPlatform(const LevelCommand& command, QTextStream& err) {
  return BusLevelCommandSource::send(QDBusConnection::sessionBus(), command, err);
}

}  // namespace tindra
