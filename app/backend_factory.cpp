#include "backend_factory.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusError>
#include <QGuiApplication>

#include "banners/fake_notification_source.h"
#include "banners/linux/dbus_notification_monitor.h"
#include "banners/linux/desktop_entry_opener.h"
#include "base/backend_selection.h"
#include "base/linux/pulse_sound_player.h"
#include "base/qt_http_transport.h"
#include "calendar/fake_calendar_backend.h"
#include "calendar/linux/icalendar_backend.h"
#include "focus/fake_focus_status_source.h"
#include "focus/linux/gsettings_focus_source.h"
#include "focus/linux/notification_server_focus_source.h"
#include "levels/fake_backlight_backend.h"
#include "levels/fake_volume_backend.h"
#include "levels/linux/pulse_volume_backend.h"
#include "levels/linux/sysfs_backlight_backend.h"
#include "levels/linux/upower_keyboard_backlight_backend.h"
#include "levels/linux/x11_media_key_source.h"
#include "lockscreen/fake_lock_state_source.h"
#include "lockscreen/linux/logind_lock_source.h"
#include "media/adapter_now_playing_source.h"
#include "media/fake_now_playing_source.h"
#include "media/linux/pulse_process_tap_session.h"
#include "media/network_artwork_fetcher.h"
#include "media/offline_artwork_fetcher.h"
#include "media/platform_adapter_launch.h"
#include "power/fake_accessory_backend.h"
#include "power/fake_battery_backend.h"
#include "power/linux/bluez_accessory_backend.h"
#include "power/linux/upower_battery_backend.h"
#include "visibility/linux/desktop_entry_categories.h"
#include "visibility/linux/x11_visibility_source.h"
#include "weather/fake_weather.h"
#include "weather/linux/geoclue_location_source.h"

namespace tindra {

std::unique_ptr<BatteryBackend> makeBatteryBackend() {
  if (fakeBackendRequested(QStringLiteral("battery")))
    return std::make_unique<FakeBatteryBackend>();
  QDBusConnection bus = QDBusConnection::systemBus();
  if (!bus.isConnected()) {
    return std::make_unique<BatteryBackend::Null>(
        Sentence::in("Backends",
                     QT_TRANSLATE_NOOP("Backends", "no system bus (%1): no battery is shown"))
            .arg(bus.lastError().message()),
        DiagnosticsLog::Outcome::failed);
  }
  return std::make_unique<UPowerBatteryBackend>(bus);
}

namespace {

// The one connection to the sound server, shared by the volume and the live spectrum.
std::shared_ptr<PulseConnection> soundServer() {
  static std::weak_ptr<PulseConnection> shared;
  std::shared_ptr<PulseConnection> connection = shared.lock();
  if (!connection) {
    connection = std::make_shared<PulseConnection>();
    shared = connection;
  }
  return connection;
}

std::unique_ptr<MediaKeySource> makeMediaKeySource() {
  if (qEnvironmentVariable("XDG_SESSION_TYPE") == QLatin1String("wayland")) {
    return std::make_unique<MediaKeySource::Null>(Sentence::in(
        "Backends", QT_TRANSLATE_NOOP(
                        "Backends",
                        "a Wayland session lets no program take the keys: the desktop keeps them, "
                        "and the level changes it makes are shown")));
  }
  return std::make_unique<X11MediaKeySource>();
}

}  // namespace

std::unique_ptr<AccessoryBackend> makeAccessoryBackend() {
  if (fakeBackendRequested(QStringLiteral("accessories"))) {
    return std::make_unique<FakeAccessoryBackend>();
  }
  // Without a system bus it says so in its check and shows nothing.
  return std::make_unique<BlueZAccessoryBackend>(QDBusConnection::systemBus());
}

std::unique_ptr<CalendarBackend> makeCalendarBackend(const std::function<double()>& now) {
  if (fakeBackendRequested(QStringLiteral("calendar"))) {
    return std::make_unique<FakeCalendarBackend>(now());
  }
  return std::make_unique<ICalendarBackend>(ICalendarBackend::defaultPlaces(), now);
}

WeatherBackend makeWeatherBackend(QNetworkAccessManager& network,
                                  const std::function<double()>& now) {
  if (fakeBackendRequested(QStringLiteral("weather"))) {
    return {std::make_unique<FakeLocationSource>(), std::make_shared<FakeForecastTransport>(now)};
  }
  return {std::make_unique<GeoClueLocationSource>(QDBusConnection::systemBus()),
          std::make_shared<QtHTTPTransport>(network, now)};
}

std::unique_ptr<TravelTimeEstimator> makeTravelTimeEstimator() {
  return std::make_unique<NullTravelTimeEstimator>();
}

std::shared_ptr<SoundPlayer> makeSoundPlayer() {
  return std::make_shared<PulseSoundPlayer>(
      soundServer(), QStringList{"tindra-charging", "tindra-low-battery", "tindra-event"});
}

HudBackends makeHudBackends() {
  if (fakeBackendRequested(QStringLiteral("hud"))) {
    return {std::make_unique<FakeVolumeBackend>(),
            std::make_unique<FakeBacklightBackend>(QStringLiteral("invented-panel"), 0.7),
            std::make_unique<FakeBacklightBackend>(QStringLiteral("invented-keyboard"), 0.4),
            makeMediaKeySource()};
  }
  // TINDRA_BACKLIGHT_FOLDER stands in for /sys/class/backlight in tests and demos.
  const QString backlights =
      qEnvironmentVariable("TINDRA_BACKLIGHT_FOLDER", SysfsBacklightBackend::defaultFolder);
  const QDBusConnection systemBus = QDBusConnection::systemBus();
  // The volume waits for a sound server that is not there yet and follows one that restarts.
  return {std::make_unique<PulseVolumeBackend>(soundServer()),
          std::make_unique<SysfsBacklightBackend>(backlights, systemBus),
          std::make_unique<UPowerKeyboardBacklightBackend>(systemBus), makeMediaKeySource()};
}

NowPlayingBackend makeNowPlayingBackend() {
  if (fakeBackendRequested(QStringLiteral("media"))) {
    return {[] { return std::make_unique<FakeNowPlayingSource>(); }, nullptr,
            std::make_unique<OfflineArtworkFetcher>(), std::nullopt, nullptr};
  }
  const AdapterLaunch launch = platformAdapterLaunch();
  return {[launch] { return std::make_unique<AdapterNowPlayingSource>(launch); },
          std::make_unique<AdapterProbe>(launch), std::make_unique<NetworkArtworkFetcher>(), launch,
          std::make_unique<PulseProcessTapSession>(soundServer())};
}

std::shared_ptr<FocusStatusSource> makeFocusStatusSource() {
  if (fakeBackendRequested(QStringLiteral("focus"))) {
    return std::make_shared<FakeFocusStatusSource>();
  }
  const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'));
  if (desktops.contains(QStringLiteral("GNOME"), Qt::CaseInsensitive) &&
      GSettingsFocusSource::available()) {
    return std::make_shared<GSettingsFocusSource>();
  }
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) {
    return std::make_shared<FocusStatusSource::Null>(Sentence::in(
        "Backends",
        QT_TRANSLATE_NOOP("Backends",
                          "no session bus: do-not-disturb is unknown, only `tindra focus` shows a "
                          "Focus")));
  }
  return std::make_shared<NotificationServerFocusSource>(bus);
}

std::unique_ptr<NotificationSource> makeNotificationSource() {
  if (fakeBackendRequested(QStringLiteral("banners"))) {
    return std::make_unique<FakeNotificationSource>();
  }
  return std::make_unique<DBusNotificationMonitor>(QDBusConnection::sessionBus());
}

std::unique_ptr<ApplicationOpener> makeApplicationOpener() {
  return std::make_unique<DesktopEntryOpener>();
}

std::unique_ptr<LockStateSource> makeLockStateSource() {
  if (fakeBackendRequested(QStringLiteral("lockscreen"))) {
    return std::make_unique<FakeLockStateSource>();
  }
  return std::make_unique<LogindLockSource>(QDBusConnection::systemBus(),
                                            QDBusConnection::sessionBus());
}

std::unique_ptr<VisibilitySource> makeVisibilitySource() {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) {
    return std::make_unique<VisibilitySource::Null>(
        Sentence::in(
            "Backends",
            QT_TRANSLATE_NOOP("Backends",
                              "no X11 window manager to ask (%1): the notch never steps aside for "
                              "full-screen windows or games"))
            .arg(QGuiApplication::platformName()));
  }
  return std::make_unique<X11VisibilitySource>(isGameApplication);
}

}  // namespace tindra
