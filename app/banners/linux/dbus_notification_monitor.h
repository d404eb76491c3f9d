// DBusNotificationMonitor: reads the notifications on the session bus as a monitor. A connection
// of its own asks the bus to become a monitor (BecomeMonitor) with matches on the Notify calls to
// org.freedesktop.Notifications, the server's answers (which carry each notification's number)
// and its NotificationClosed signal, and on GLib's AddNotification and RemoveNotification calls to
// org.gtk.Notifications (GNOME's own applications and sandboxed ones through the notification
// portal send theirs there), so it wakes only when a notification is sent or closed. A
// monitor can never send, so this connection is libdbus's own, driven by socket notifiers on the
// Qt event loop; it is opened and made a monitor on a worker thread, as both wait for the bus.
// The server's arrival and departure are followed on Qt's session bus, and the monitor is
// attached anew for each server.
#pragma once

#include <QDBusConnection>
#include <QSocketNotifier>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "banners/notification_source.h"
#include "base/dbus/dbus_service_follower.h"

struct DBusConnection;
struct DBusMessage;
struct DBusWatch;

namespace tindra {

class DBusNotificationMonitor final : public NotificationSource {
  Q_OBJECT

 public:
  // `bus` is the session bus; the monitor connects to the same address on its own.
  explicit DBusNotificationMonitor(QDBusConnection bus, QObject* parent = nullptr);
  ~DBusNotificationMonitor() override;

  void start() override;
  void stop() override;

 private:
  struct Opened;
  struct Watch;
  struct Sent {
    std::string sender;
    std::uint32_t serial = 0;
    DesktopNotification notification;
  };

  static Sentence noServer();
  std::vector<QByteArray> rules() const;
  // A connection of its own to the session bus, made a monitor of `rules`. Blocks: worker
  // threads only.
  static Opened open(const std::vector<QByteArray>& rules);
  void attach(const QString& owner);
  void listen(Opened opened);
  void detach();
  void dispatch();
  void take(DBusMessage* message);
  void answered(DBusMessage* answer, bool accepted);
  // The number standing for GLib's notification `key`; 0 for an unknown one unless `add`.
  quint32 gtkNumber(const std::string& key, bool add);

  static unsigned addWatch(DBusWatch* watch, void* self);
  static void removeWatch(DBusWatch* watch, void* self);
  static void toggleWatch(DBusWatch* watch, void* self);

  DBusServiceFollower server_;
  bool running_ = false;
  QString owner_;
  quint64 attempt_ = 0;  // counts attaches, so that a connection opened too late is dropped
  std::shared_ptr<DBusConnection> monitor_;
  std::vector<std::unique_ptr<Watch>> watches_;
  std::deque<Sent> unanswered_;  // Notify calls waiting for the server's number
  std::map<std::string, quint32> gtkNumbers_;
  quint32 nextGtkNumber_ = 0x80000000;
};

}  // namespace tindra
