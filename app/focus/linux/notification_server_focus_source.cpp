#include "focus/linux/notification_server_focus_source.h"

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_value.h"

namespace tindra {

namespace {

std::optional<bool> inhibited(const QVariantMap& properties) {
  return dbus::typed<bool>(properties, QStringLiteral("Inhibited"));
}

}  // namespace

// Asking the server, as any call to it would, starts one where the desktop installs it.
NotificationServerFocusSource::NotificationServerFocusSource(QDBusConnection bus, QObject* parent)
    : FocusStatusSource(parent),
      server_(std::move(bus), dbus::notificationsService,
              {{dbus::notificationsPath, dbus::notificationsInterface}},
              DBusServiceFollower::Activation::start) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("asking the notification server for do-not-disturb"), tr));
  connect(&server_, &DBusServiceFollower::read, this, [this](const QVariantMap& properties) {
    const std::optional<bool> focused = inhibited(properties);
    take(focused, focused ? reading() : noProperty());
  });
  connect(&server_, &DBusServiceFollower::changed, this, [this](const QVariantMap& properties) {
    if (const std::optional<bool> focused = inhibited(properties)) take(focused, reading());
  });
  connect(&server_, &DBusServiceFollower::readFailed, this,
          [this] { take(std::nullopt, noProperty()); });
  connect(&server_, &DBusServiceFollower::missing, this, [this] {
    take(std::nullopt, Sentence(QT_TR_NOOP("no notification server runs: do-not-disturb is "
                                           "unknown until one starts"),
                                tr));
  });
  connect(&server_, &DBusServiceFollower::vanished, this, [this] {
    take(std::nullopt, Sentence(QT_TR_NOOP("the notification server went away: do-not-disturb "
                                           "is unknown until it returns"),
                                tr));
  });
}

void NotificationServerFocusSource::start() {
  server_.start();
}

Sentence NotificationServerFocusSource::reading() {
  return Sentence(QT_TR_NOOP("reading do-not-disturb from the notification server (Inhibited)"),
                  tr);
}

Sentence NotificationServerFocusSource::noProperty() {
  return Sentence(QT_TR_NOOP("the notification server does not report do-not-disturb (no "
                             "Inhibited property): only `tindra focus` shows a Focus"),
                  tr);
}

void NotificationServerFocusSource::take(std::optional<bool> focused, const Sentence& check) {
  setCheck(focused ? DiagnosticsLog::Outcome::ok : DiagnosticsLog::Outcome::degraded, check);
  publish(focused);
}

}  // namespace tindra
