// The level backends on Linux: the sound server's default output through libpulse, the display's
// backlight in /sys/class/backlight written through logind, the keyboard's light through UPower,
// the keys through X11 grabs where the session is an X11 one, `tindra level` commands on the
// session bus, and the volume sound as GNOME's or Plasma's settings choose it.
#include <QGuiApplication>
#include <algorithm>
#include <initializer_list>

#include "base/linux/pulse_connection.h"
#include "base/linux/system_bus.h"
#include "levels/linux/bus_level_command_source.h"
#include "levels/linux/gsettings_volume_sound_preference.h"
#include "levels/linux/plasma_volume_sound_preference.h"
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

namespace {

bool sessionIsOneOf(std::initializer_list<QLatin1String> names) {
  const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'));
  return std::ranges::any_of(
      names, [&](QLatin1String name) { return desktops.contains(name, Qt::CaseInsensitive); });
}

}  // namespace

// GNOME's schema is installed on most desktops, GNOME or not, but only the GNOME family plays
// its sounds by it: elsewhere its event sounds switch (on by default) is one nobody looks at,
// and following it would override Tindra's own setting with a choice the user never made.
std::unique_ptr<VolumeSoundPreference> VolumeSoundPreference::forPlatform(SharedBackends&) {
  if (sessionIsOneOf({QLatin1String("KDE")})) {
    return std::make_unique<PlasmaVolumeSoundPreference>();
  }
  if (sessionIsOneOf({QLatin1String("GNOME"), QLatin1String("Unity"), QLatin1String("Budgie"),
                      QLatin1String("Pantheon")})) {
    return std::make_unique<GSettingsVolumeSoundPreference>();
  }
  return std::make_unique<VolumeSoundPreference::Null>(
      Sentence::in("Backends", QT_TRANSLATE_NOOP("Backends",
                                                 "this desktop has no volume sound setting: the "
                                                 "volume sound follows Tindra's own setting")),
      DiagnosticsLog::Outcome::ok);
}

}  // namespace tindra
