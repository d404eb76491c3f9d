// Calls and messages on Linux: the notifications on the session bus, read as a bus monitor, and
// their senders opened through their desktop entries.
#include "banners/linux/dbus_notification_monitor.h"
#include "banners/linux/desktop_entry_opener.h"

namespace tindra {

std::unique_ptr<NotificationSource> NotificationSource::forPlatform(SharedBackends&) {
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) {
    return std::make_unique<NotificationSource::Null>(
        Sentence::in("Backends", QT_TRANSLATE_NOOP("Backends",
                                                   "no session bus: no calls or messages are "
                                                   "shown")),
        DiagnosticsLog::Outcome::failed);
  }
  return std::make_unique<DBusNotificationMonitor>(bus);
}

std::unique_ptr<ApplicationOpener> ApplicationOpener::forPlatform() {
  return std::make_unique<DesktopEntryOpener>();
}

}  // namespace tindra
