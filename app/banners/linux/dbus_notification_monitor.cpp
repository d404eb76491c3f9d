#include "banners/linux/dbus_notification_monitor.h"

#include <dbus/dbus.h>

#include <QTimer>
#include <algorithm>

#include "base/assign_if_changed.h"
#include "base/dbus/dbus_names.h"
#include "base/logging_categories.h"
#include "base/run_off_thread.h"

namespace tindra {

namespace {

// A few notifications in flight at once; more only when a server stopped answering.
constexpr std::size_t maxUnanswered = 32;
constexpr int becomeMonitorTimeoutMs = 2000;
// GLib's notifications remembered by name, to tell their removal; old ones are forgotten.
constexpr std::size_t maxGtkNotifications = 256;

std::string stringArgument(DBusMessageIter& iter) {
  if (dbus_message_iter_get_arg_type(&iter) != DBUS_TYPE_STRING) return {};
  const char* value = nullptr;
  dbus_message_iter_get_basic(&iter, &value);
  return value ? value : "";
}

std::uint32_t uintArgument(DBusMessageIter& iter) {
  if (dbus_message_iter_get_arg_type(&iter) != DBUS_TYPE_UINT32) return 0;
  dbus_uint32_t value = 0;
  dbus_message_iter_get_basic(&iter, &value);
  return value;
}

std::vector<std::string> stringsArgument(DBusMessageIter& iter) {
  std::vector<std::string> strings;
  if (dbus_message_iter_get_arg_type(&iter) != DBUS_TYPE_ARRAY) return strings;
  DBusMessageIter item;
  dbus_message_iter_recurse(&iter, &item);
  while (dbus_message_iter_get_arg_type(&item) == DBUS_TYPE_STRING) {
    strings.push_back(stringArgument(item));
    dbus_message_iter_next(&item);
  }
  return strings;
}

// The string members of an a{sv}, by name; members of other types are skipped.
std::map<std::string, std::string> stringMembers(DBusMessageIter& iter) {
  std::map<std::string, std::string> members;
  if (dbus_message_iter_get_arg_type(&iter) != DBUS_TYPE_ARRAY) return members;
  DBusMessageIter entry;
  dbus_message_iter_recurse(&iter, &entry);
  for (; dbus_message_iter_get_arg_type(&entry) == DBUS_TYPE_DICT_ENTRY;
       dbus_message_iter_next(&entry)) {
    DBusMessageIter field;
    dbus_message_iter_recurse(&entry, &field);
    const std::string key = stringArgument(field);
    if (!dbus_message_iter_next(&field) ||
        dbus_message_iter_get_arg_type(&field) != DBUS_TYPE_VARIANT) {
      continue;
    }
    DBusMessageIter value;
    dbus_message_iter_recurse(&field, &value);
    if (dbus_message_iter_get_arg_type(&value) == DBUS_TYPE_STRING) {
      members[key] = stringArgument(value);
    }
  }
  return members;
}

// The hints we read ("desktop-entry", "category"); other hints are skipped.
void readHints(DBusMessageIter& iter, DesktopNotification& notification) {
  std::map<std::string, std::string> hints = stringMembers(iter);
  notification.desktopEntry = std::move(hints["desktop-entry"]);
  notification.category = std::move(hints["category"]);
  if (notification.desktopEntry.ends_with(".desktop")) {
    notification.desktopEntry.resize(notification.desktopEntry.size() - 8);
  }
}

// Notify(app_name s, replaces_id u, app_icon s, summary s, body s, actions as, hints a{sv},
// expire_timeout i). A part of the wrong type is left empty.
DesktopNotification readNotify(DBusMessage* message) {
  DesktopNotification notification;
  DBusMessageIter iter;
  if (!dbus_message_iter_init(message, &iter)) return notification;
  notification.appName = stringArgument(iter);
  dbus_message_iter_next(&iter);
  notification.id = uintArgument(iter);  // replaces_id; the answer gives the real one
  dbus_message_iter_next(&iter);
  dbus_message_iter_next(&iter);  // app_icon
  notification.summary = stringArgument(iter);
  dbus_message_iter_next(&iter);
  notification.body = stringArgument(iter);
  dbus_message_iter_next(&iter);
  notification.actions = stringsArgument(iter);
  dbus_message_iter_next(&iter);
  readHints(iter, notification);
  return notification;
}

// AddNotification(app_id s, id s, notification a{sv}) of org.gtk.Notifications, which GNOME's
// own applications and the notification portal use: the application id is its desktop entry.
DesktopNotification readGtkNotification(DBusMessage* message) {
  DesktopNotification notification;
  DBusMessageIter iter;
  if (!dbus_message_iter_init(message, &iter)) return notification;
  notification.desktopEntry = stringArgument(iter);
  dbus_message_iter_next(&iter);
  dbus_message_iter_next(&iter);  // its own id
  std::map<std::string, std::string> fields = stringMembers(iter);
  notification.summary = std::move(fields["title"]);
  notification.body = std::move(fields["body"]);
  notification.category = std::move(fields["category"]);
  return notification;
}

// "app_id\nid": GLib's notifications are named by their application and a string.
std::string gtkKey(DBusMessage* message) {
  DBusMessageIter iter;
  if (!dbus_message_iter_init(message, &iter)) return {};
  std::string key = stringArgument(iter) + '\n';
  dbus_message_iter_next(&iter);
  return key + stringArgument(iter);
}

std::uint32_t firstUint(DBusMessage* message) {
  DBusMessageIter iter;
  return dbus_message_iter_init(message, &iter) ? uintArgument(iter) : 0;
}

std::string text(const char* value) {
  return value ? value : "";
}

void closeConnection(DBusConnection* connection) {
  if (!connection) return;
  dbus_connection_close(connection);
  dbus_connection_unref(connection);
}

}  // namespace

struct DBusNotificationMonitor::Opened {
  std::shared_ptr<DBusConnection> connection;  // closed when its last holder lets go
  QString error;
};

// Both steps wait for the bus (BecomeMonitor is answered by the bus itself, at once), so this runs
// on a worker thread; the connection is handed to the main thread unused.
DBusNotificationMonitor::Opened DBusNotificationMonitor::open(
    const std::vector<QByteArray>& rules) {
  DBusError error;
  dbus_error_init(&error);
  std::shared_ptr<DBusConnection> connection(dbus_bus_get_private(DBUS_BUS_SESSION, &error),
                                             closeConnection);
  if (connection) {
    dbus_connection_set_exit_on_disconnect(connection.get(), FALSE);
    std::vector<const char*> list;
    for (const QByteArray& rule : rules) list.push_back(rule.constData());
    const char** ruleList = list.data();
    DBusMessage* call =
        dbus_message_new_method_call("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                     "org.freedesktop.DBus.Monitoring", "BecomeMonitor");
    const dbus_uint32_t flags = 0;
    dbus_message_append_args(call, DBUS_TYPE_ARRAY, DBUS_TYPE_STRING, &ruleList,
                             static_cast<int>(list.size()), DBUS_TYPE_UINT32, &flags,
                             DBUS_TYPE_INVALID);
    DBusMessage* reply = dbus_connection_send_with_reply_and_block(connection.get(), call,
                                                                   becomeMonitorTimeoutMs, &error);
    dbus_message_unref(call);
    if (reply) dbus_message_unref(reply);
  }
  if (!dbus_error_is_set(&error)) return {std::move(connection), {}};
  Opened failed{nullptr, QString::fromUtf8(error.message)};
  dbus_error_free(&error);
  return failed;
}

// The notifiers are the monitor's children and leave through deleteLater: libdbus may drop a
// watch while its notifier is telling of activity.
struct DBusNotificationMonitor::Watch {
  DBusWatch* watch = nullptr;
  QSocketNotifier* read = nullptr;
  QSocketNotifier* write = nullptr;

  ~Watch() {
    for (QSocketNotifier* notifier : {read, write}) {
      if (!notifier) continue;
      notifier->setEnabled(false);
      notifier->deleteLater();
    }
  }
};

// The server is never started for the monitor: the monitor only watches the one the desktop runs.
DBusNotificationMonitor::DBusNotificationMonitor(QDBusConnection bus, QObject* parent)
    : NotificationSource(parent), server_(std::move(bus), dbus::notificationsService) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("calls and messages are off: notifications are not read"), tr));
  connect(&server_, &DBusServiceFollower::appeared, this, [this] {
    if (running_) attach(server_.owner());
  });
  connect(&server_, &DBusServiceFollower::missing, this, [this] {
    if (running_) attach(QString());
  });
  connect(&server_, &DBusServiceFollower::vanished, this, [this] {
    if (!running_) return;
    emit serverGone();
    // Told now, not once the monitor is attached anew: a server that is back (or replaced)
    // before that would otherwise leave no trace of its crash in Diagnostics.
    setCheck(DiagnosticsLog::Outcome::degraded, noServer());
    attach(QString());
  });
}

DBusNotificationMonitor::~DBusNotificationMonitor() {
  detach();
}

void DBusNotificationMonitor::start() {
  if (running_) return;
  running_ = true;
  server_.start();
  if (server_.settled()) attach(server_.owner());  // started before, and stopped since
}

void DBusNotificationMonitor::stop() {
  if (!running_) return;
  running_ = false;
  detach();
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("calls and messages are off: notifications are not read"), tr));
}

Sentence DBusNotificationMonitor::noServer() {
  return Sentence(QT_TR_NOOP("no notification server runs on the session bus: calls and messages "
                             "show once one starts"),
                  tr);
}

// The rules: both ways programs send notifications, the server's closing signal and, when a
// server runs, its answers to Notify (which carry the numbers it gives).
std::vector<QByteArray> DBusNotificationMonitor::rules() const {
  std::vector<QByteArray> rules{
      "type='method_call',interface='org.freedesktop.Notifications',member='Notify'",
      "type='signal',interface='org.freedesktop.Notifications',member='NotificationClosed'",
      "type='method_call',interface='org.gtk.Notifications',member='AddNotification'",
      "type='method_call',interface='org.gtk.Notifications',member='RemoveNotification'"};
  if (!owner_.isEmpty()) {
    const QByteArray answers = QStringLiteral(",sender='%1'").arg(owner_).toUtf8();
    rules.push_back("type='method_return'" + answers);
    rules.push_back("type='error'" + answers);
  }
  return rules;
}

void DBusNotificationMonitor::attach(const QString& owner) {
  detach();
  owner_ = owner;
  // Taken, not copied: the connection closes with its last holder.
  runOffThread(
      this, [rules = rules()] { return open(rules); },
      [this, attempt = attempt_](Opened opened) {
        if (attempt == attempt_) listen(std::move(opened));
      });
}

void DBusNotificationMonitor::listen(Opened opened) {
  if (!opened.connection) {
    setCheck(
        DiagnosticsLog::Outcome::failed,
        Sentence(QT_TR_NOOP("the session bus does not let Tindra read notifications (%1): no calls "
                            "or messages are shown"),
                 tr)
            .arg(opened.error));
    return;
  }
  monitor_ = std::move(opened.connection);
  dbus_connection_add_filter(
      monitor_.get(),
      [](DBusConnection*, DBusMessage* message, void* self) {
        static_cast<DBusNotificationMonitor*>(self)->take(message);
        // Everything is "handled": libdbus would otherwise answer method calls, and a monitor
        // that sends anything is thrown off the bus.
        return DBUS_HANDLER_RESULT_HANDLED;
      },
      this, nullptr);
  dbus_connection_set_watch_functions(monitor_.get(), addWatch, removeWatch, toggleWatch, this,
                                      nullptr);
  qCInfo(lcBanners) << "Reading notification banners for calls and messages";
  if (owner_.isEmpty()) {
    setCheck(DiagnosticsLog::Outcome::degraded, noServer());
  } else {
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("reading notification banners for calls and messages"), tr));
  }
  // What arrived with the answer is already queued.
  QTimer::singleShot(0, this, &DBusNotificationMonitor::dispatch);
}

void DBusNotificationMonitor::detach() {
  ++attempt_;  // a connection still being opened is closed as it arrives
  unanswered_.clear();
  if (!monitor_) return;
  dbus_connection_set_watch_functions(monitor_.get(), nullptr, nullptr, nullptr, nullptr, nullptr);
  watches_.clear();
  monitor_.reset();
}

void DBusNotificationMonitor::dispatch() {
  if (!monitor_) return;
  while (dbus_connection_dispatch(monitor_.get()) == DBUS_DISPATCH_DATA_REMAINS) {
  }
  if (!dbus_connection_get_is_connected(monitor_.get())) {
    detach();
    setCheck(DiagnosticsLog::Outcome::failed,
             Sentence(QT_TR_NOOP("the session bus closed the notification monitor: no calls or "
                                 "messages are shown"),
                      tr));
  }
}

void DBusNotificationMonitor::take(DBusMessage* message) {
  switch (dbus_message_get_type(message)) {
    case DBUS_MESSAGE_TYPE_METHOD_CALL:
      if (dbus_message_is_method_call(message, "org.freedesktop.Notifications", "Notify")) {
        unanswered_.push_back({text(dbus_message_get_sender(message)),
                               dbus_message_get_serial(message), readNotify(message)});
        if (unanswered_.size() > maxUnanswered) unanswered_.pop_front();
      } else if (dbus_message_is_method_call(message, "org.gtk.Notifications", "AddNotification")) {
        DesktopNotification notification = readGtkNotification(message);
        notification.id = gtkNumber(gtkKey(message), true);
        emit notified(notification);
      } else if (dbus_message_is_method_call(message, "org.gtk.Notifications",
                                             "RemoveNotification")) {
        if (const quint32 id = gtkNumber(gtkKey(message), false)) emit closed(id);
      }
      break;
    case DBUS_MESSAGE_TYPE_METHOD_RETURN:
      answered(message, true);
      break;
    case DBUS_MESSAGE_TYPE_ERROR:
      answered(message, false);
      break;
    case DBUS_MESSAGE_TYPE_SIGNAL:
      if (dbus_message_is_signal(message, "org.freedesktop.Notifications", "NotificationClosed") &&
          text(dbus_message_get_sender(message)) == owner_.toStdString()) {
        emit closed(firstUint(message));
      }
      break;
    default:
      break;
  }
}

quint32 DBusNotificationMonitor::gtkNumber(const std::string& key, bool add) {
  const auto found = gtkNumbers_.find(key);
  if (found != gtkNumbers_.end()) return found->second;
  if (!add) return 0;
  // Numbers of their own, far above those a server counts up from 1.
  if (gtkNumbers_.size() >= maxGtkNotifications) gtkNumbers_.clear();
  return gtkNumbers_[key] = nextGtkNumber_++;
}

void DBusNotificationMonitor::answered(DBusMessage* answer, bool accepted) {
  const std::string destination = text(dbus_message_get_destination(answer));
  const dbus_uint32_t serial = dbus_message_get_reply_serial(answer);
  const auto sent = std::ranges::find_if(unanswered_, [&](const Sent& candidate) {
    return candidate.serial == serial && candidate.sender == destination;
  });
  if (sent == unanswered_.end()) return;
  DesktopNotification notification = std::move(sent->notification);
  unanswered_.erase(sent);
  if (!accepted) return;
  notification.id = firstUint(answer);
  emit notified(notification);
}

unsigned DBusNotificationMonitor::addWatch(DBusWatch* watch, void* self) {
  auto* monitor = static_cast<DBusNotificationMonitor*>(self);
  const int fd = dbus_watch_get_unix_fd(watch);
  const unsigned flags = dbus_watch_get_flags(watch);
  auto entry = std::make_unique<Watch>();
  entry->watch = watch;
  const auto notifier = [&](QSocketNotifier::Type type, unsigned condition) {
    auto* made = new QSocketNotifier(fd, type, monitor);
    QObject::connect(made, &QSocketNotifier::activated, monitor, [monitor, watch, condition] {
      dbus_watch_handle(watch, condition);
      monitor->dispatch();
    });
    return made;
  };
  if (flags & DBUS_WATCH_READABLE)
    entry->read = notifier(QSocketNotifier::Read, DBUS_WATCH_READABLE);
  if (flags & DBUS_WATCH_WRITABLE) {
    entry->write = notifier(QSocketNotifier::Write, DBUS_WATCH_WRITABLE);
  }
  monitor->watches_.push_back(std::move(entry));
  toggleWatch(watch, self);
  return TRUE;
}

void DBusNotificationMonitor::removeWatch(DBusWatch* watch, void* self) {
  std::erase_if(static_cast<DBusNotificationMonitor*>(self)->watches_,
                [watch](const auto& entry) { return entry->watch == watch; });
}

void DBusNotificationMonitor::toggleWatch(DBusWatch* watch, void* self) {
  const bool enabled = dbus_watch_get_enabled(watch);
  for (const auto& entry : static_cast<DBusNotificationMonitor*>(self)->watches_) {
    if (entry->watch != watch) continue;
    if (entry->read) entry->read->setEnabled(enabled);
    if (entry->write) entry->write->setEnabled(enabled);
  }
}

}  // namespace tindra
