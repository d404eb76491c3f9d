// The desktop's do-not-disturb on Linux: GNOME's setting on GNOME, else the notification
// server's Inhibited property (KDE Plasma and others).
#include <QDBusConnection>

#include "focus/linux/gsettings_focus_source.h"
#include "focus/linux/notification_server_focus_source.h"

namespace tindra {

std::unique_ptr<FocusStatusSource> FocusStatusSource::forPlatform(SharedBackends&) {
  const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'));
  if (desktops.contains(QStringLiteral("GNOME"), Qt::CaseInsensitive) &&
      GSettingsFocusSource::available()) {
    return std::make_unique<GSettingsFocusSource>();
  }
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) {
    return std::make_unique<FocusStatusSource::Null>(Sentence::in(
        "Backends", QT_TRANSLATE_NOOP("Backends",
                                      "no session bus: do-not-disturb is unknown, only `tindra "
                                      "focus` shows a Focus")));
  }
  return std::make_unique<NotificationServerFocusSource>(bus);
}

}  // namespace tindra
