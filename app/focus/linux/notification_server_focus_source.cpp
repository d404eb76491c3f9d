#include "focus/linux/notification_server_focus_source.h"

#include <QDBusMessage>
#include <QDBusVariant>

#include "base/assign_if_changed.h"
#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString inhibited = QStringLiteral("Inhibited");

// Errors that mean no server answered at all (none runs, or it went away while asked), rather
// than a server without the property.
bool serverAbsent(const QString& error) {
  return error == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") ||
         error == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner") ||
         error == QLatin1String("org.freedesktop.DBus.Error.NoReply") ||
         error == QLatin1String("org.freedesktop.DBus.Error.Disconnected");
}

ServiceCheck readingCheck() {
  return {DiagnosticsLog::Outcome::ok,
          NotificationServerFocusSource::tr(
              "reading do-not-disturb from the notification server (Inhibited)")};
}

}  // namespace

NotificationServerFocusSource::NotificationServerFocusSource(QDBusConnection bus, QObject* parent)
    : FocusStatusSource(parent),
      bus_(std::move(bus)),
      watcher_(
          dbus::notificationsService, bus_,
          QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration),
      check_{DiagnosticsLog::Outcome::ok, tr("asking the notification server for do-not-disturb")} {
}

void NotificationServerFocusSource::start() {
  bus_.connect(dbus::notificationsService, dbus::notificationsPath, dbus::properties,
               QStringLiteral("PropertiesChanged"), this,
               SLOT(onPropertiesChanged(QString, QVariantMap, QStringList)));
  connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this,
          &NotificationServerFocusSource::read);
  connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    publish(std::nullopt, {DiagnosticsLog::Outcome::degraded,
                           tr("the notification server went away: do-not-disturb is unknown "
                              "until it returns")});
  });
  read();
}

void NotificationServerFocusSource::read() {
  QDBusMessage call = QDBusMessage::createMethodCall(
      dbus::notificationsService, dbus::notificationsPath, dbus::properties, QStringLiteral("Get"));
  call << dbus::notificationsInterface << inhibited;
  whenAnswered(bus_.asyncCall(call), this, [this](const QDBusMessage& answer) {
    const QVariant value = answer.type() == QDBusMessage::ReplyMessage
                               ? answer.arguments().value(0).value<QDBusVariant>().variant()
                               : QVariant();
    if (value.typeId() == QMetaType::Bool) {
      publish(value.toBool(), readingCheck());
    } else if (answer.type() == QDBusMessage::ErrorMessage && serverAbsent(answer.errorName())) {
      publish(std::nullopt, {DiagnosticsLog::Outcome::degraded,
                             tr("no notification server runs: do-not-disturb is "
                                "unknown until one starts")});
    } else {
      publish(std::nullopt,
              {DiagnosticsLog::Outcome::degraded, tr("the notification server does not report "
                                                     "do-not-disturb (no Inhibited property): only "
                                                     "`tindra focus` shows a Focus")});
    }
  });
}

void NotificationServerFocusSource::onPropertiesChanged(const QString& interface,
                                                        const QVariantMap& changed,
                                                        const QStringList& invalidated) {
  if (interface != dbus::notificationsInterface) return;
  if (invalidated.contains(inhibited)) {
    read();
    return;
  }
  const auto value = changed.constFind(inhibited);
  if (value != changed.constEnd() && value->typeId() == QMetaType::Bool) {
    publish(value->toBool(), readingCheck());
  }
}

void NotificationServerFocusSource::publish(std::optional<bool> focused, ServiceCheck check) {
  if (assignIfChanged(check_, std::move(check))) emit checkChanged();
  if (assignIfChanged(focused_, focused)) emit focusedChanged();
}

}  // namespace tindra
