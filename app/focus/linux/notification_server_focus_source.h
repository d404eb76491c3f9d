// NotificationServerFocusSource: do-not-disturb as the desktop's notification server reports it,
// in the `Inhibited` property of org.freedesktop.Notifications (KDE Plasma and other servers).
// It reads the property when the server appears and follows PropertiesChanged; a server without
// the property, or none at all, leaves the state unknown and the check says why.
#pragma once

#include <QDBusConnection>

#include "base/dbus/dbus_service_follower.h"
#include "focus/focus_status_source.h"

namespace tindra {

class NotificationServerFocusSource final : public FocusStatusSource {
  Q_OBJECT

 public:
  explicit NotificationServerFocusSource(QDBusConnection bus, QObject* parent = nullptr);

  void start() override;

 private:
  static Sentence reading();
  static Sentence noProperty();
  // What the server said, and how it went.
  void take(std::optional<bool> focused, const Sentence& check);

  DBusServiceFollower server_;
};

}  // namespace tindra
