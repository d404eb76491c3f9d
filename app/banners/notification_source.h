// NotificationSource: the notifications programs send to the desktop, as they are sent, and
// their closing. A source only watches: it never takes the notification server's place and never
// hides, answers or closes anyone's notification. It runs only between start() and stop().
#pragma once

#include "base/backend.h"
#include "base/shared_backends.h"
#include "focus/desktop_notification.h"

namespace tindra {

class NotificationSource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  class Null;

  // This platform's notifications, or the do-nothing source where none can be read (made in the
  // platform's folder).
  static std::unique_ptr<NotificationSource> forPlatform(SharedBackends& shared);

  virtual void stop() = 0;

 signals:
  // A notification the server accepted, with the number it gave it (also one that replaces an
  // earlier one with the same number).
  void notified(const tindra::DesktopNotification& notification);
  // The server closed notification `id`: it expired, was dismissed or its sender withdrew it.
  void closed(quint32 id);
  // The server went away, and every notification with it.
  void serverGone();
};

// Where no notifications can be read: no calls or messages are shown.
class NotificationSource::Null final : public NullBackend<NotificationSource> {
 public:
  using NullBackend::NullBackend;
  void stop() override {}
};

}  // namespace tindra
