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
          Sentence(QT_TRANSLATE_NOOP("tindra::NotificationServerFocusSource",
                                     "reading do-not-disturb from the notification server "
                                     "(Inhibited)"),
                   NotificationServerFocusSource::tr)};
}

}  // namespace

NotificationServerFocusSource::NotificationServerFocusSource(QDBusConnection bus, QObject* parent)
    : FocusStatusSource(parent),
      bus_(std::move(bus)),
      watcher_(
          dbus::notificationsService, bus_,
          QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("asking the notification server for do-not-disturb"), tr));
}

void NotificationServerFocusSource::start() {
  bus_.connect(dbus::notificationsService, dbus::notificationsPath, dbus::properties,
               QStringLiteral("PropertiesChanged"), this,
               SLOT(onPropertiesChanged(QString, QVariantMap, QStringList)));
  connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this,
          &NotificationServerFocusSource::read);
  connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    take(std::nullopt, {DiagnosticsLog::Outcome::degraded,
                        Sentence(QT_TR_NOOP("the notification server went away: do-not-disturb "
                                            "is unknown until it returns"),
                                 tr)});
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
      take(value.toBool(), readingCheck());
    } else if (answer.type() == QDBusMessage::ErrorMessage && serverAbsent(answer.errorName())) {
      take(std::nullopt, {DiagnosticsLog::Outcome::degraded,
                          Sentence(QT_TR_NOOP("no notification server runs: do-not-disturb is "
                                              "unknown until one starts"),
                                   tr)});
    } else {
      take(std::nullopt, {DiagnosticsLog::Outcome::degraded,
                          Sentence(QT_TR_NOOP("the notification server does not report "
                                              "do-not-disturb (no Inhibited property): only "
                                              "`tindra focus` shows a Focus"),
                                   tr)});
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
    take(value->toBool(), readingCheck());
  }
}

void NotificationServerFocusSource::take(std::optional<bool> focused, const ServiceCheck& check) {
  setCheck(check.outcome, check.text);
  publish(focused);
}

}  // namespace tindra
