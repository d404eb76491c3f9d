#include "lockscreen/linux/logind_lock_source.h"

#include <unistd.h>

#include <QDBusObjectPath>

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString logind = QStringLiteral("org.freedesktop.login1");
const QString managerPath = QStringLiteral("/org/freedesktop/login1");
const QString manager = QStringLiteral("org.freedesktop.login1.Manager");
const QString sessionInterface = QStringLiteral("org.freedesktop.login1.Session");
const QString propertiesChanged = QStringLiteral("PropertiesChanged");

QDBusMessage managerCall(const QString& method, const QVariant& argument) {
  QDBusMessage call = QDBusMessage::createMethodCall(logind, managerPath, manager, method);
  call << argument;
  return call;
}

std::optional<QString> sessionPath(const QDBusMessage& answer) {
  const auto path = dbus::argument<QDBusObjectPath>(answer);
  return path ? std::optional(path->path()) : std::nullopt;
}

}  // namespace

LogindLockSource::LogindLockSource(QDBusConnection systemBus, QDBusConnection sessionBus,
                                   QObject* parent)
    : LockStateSource(parent),
      logind_(std::move(systemBus), logind, {}, DBusServiceFollower::Activation::start),
      session_(std::move(sessionBus)) {
  setCheck(DiagnosticsLog::Outcome::ok, Sentence(QT_TR_NOOP("asking logind for the session"), tr));
  connect(&logind_, &DBusServiceFollower::appeared, this, [this] { findSession(); });
  connect(&logind_, &DBusServiceFollower::missing, this,
          [this](const QDBusError& error) { doesNotAnswer(error.name()); });
  connect(&logind_, &DBusServiceFollower::vanished, this, [this] {
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("logind went away: the screen lock is not followed until it "
                                 "returns"),
                      tr));
  });
  connect(&logind_, &DBusServiceFollower::signalReceived, this, &LogindLockSource::onSessionSignal);
}

void LogindLockSource::start() {
  // Any path: GNOME's saver speaks on /org/gnome/ScreenSaver, others on /ScreenSaver.
  for (const QString& interface :
       {QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver")}) {
    session_.connect(QString(), QString(), interface, QStringLiteral("ActiveChanged"), this,
                     SLOT(onScreenSaver(bool)));
  }
  logind_.start();
}

void LogindLockSource::findSession() {
  const auto pid = QVariant::fromValue(static_cast<quint32>(::getpid()));
  logind_.call(
      managerCall(QStringLiteral("GetSessionByPID"), pid), [this](const QDBusMessage& byProcess) {
        if (const auto path = sessionPath(byProcess)) {
          followSession(*path);
        } else if (const QString id = qEnvironmentVariable("XDG_SESSION_ID"); !id.isEmpty()) {
          findSession(id);
        } else {
          setCheck(DiagnosticsLog::Outcome::degraded,
                   Sentence(QT_TR_NOOP("logind does not know this session (%1): the "
                                       "screen lock is not followed"),
                            tr)
                       .arg(byProcess.errorName()));
        }
      });
}

void LogindLockSource::findSession(const QString& id) {
  logind_.call(managerCall(QStringLiteral("GetSession"), id), [this](const QDBusMessage& byId) {
    if (const auto path = sessionPath(byId)) {
      followSession(*path);
    } else {
      doesNotAnswer(byId.errorName());
    }
  });
}

void LogindLockSource::doesNotAnswer(const QString& error) {
  setCheck(DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("logind does not answer (%1): the screen lock is not followed"), tr)
               .arg(error));
}

void LogindLockSource::followSession(const QString& path) {
  if (path != sessionPath_) {
    // The session's signals: to drop for the session followed so far, and to take for this one.
    const std::pair<QString, QString> sessionSignals[] = {{sessionInterface, "Lock"},
                                                          {sessionInterface, "Unlock"},
                                                          {dbus::properties, propertiesChanged}};
    for (const auto& [interface, member] : sessionSignals) {
      if (!sessionPath_.isEmpty()) logind_.unfollowSignal(sessionPath_, interface, member);
      logind_.followSignal(path, interface, member);
    }
    sessionPath_ = path;
  }
  QDBusMessage call =
      QDBusMessage::createMethodCall(logind, path, dbus::properties, QStringLiteral("Get"));
  call << sessionInterface << QStringLiteral("LockedHint");
  newsSinceAsked_ = false;
  logind_.call(call, [this, path](const QDBusMessage& answer) {
    const QVariant hint = dbus::variantArgument(answer);
    if (hint.typeId() == QMetaType::Bool && !newsSinceAsked_) setLocked(hint.toBool());
    setCheck(
        DiagnosticsLog::Outcome::ok,
        Sentence(QT_TR_NOOP("following the screen lock of logind's session %1"), tr).arg(path));
  });
}

void LogindLockSource::onSessionSignal(const QDBusMessage& message) {
  if (message.path() != sessionPath_) return;
  if (message.member() == QLatin1String("Lock")) {
    news(true);
  } else if (message.member() == QLatin1String("Unlock")) {
    news(false);
  } else if (message.member() == propertiesChanged &&
             dbus::argument<QString>(message) == sessionInterface) {
    const auto changed = dbus::argument<QVariantMap>(message, 1).value_or(QVariantMap());
    if (const auto hint = dbus::typed<bool>(changed, QStringLiteral("LockedHint"))) news(*hint);
  }
}

void LogindLockSource::news(bool locked) {
  newsSinceAsked_ = true;
  setLocked(locked);
}

void LogindLockSource::onScreenSaver(bool active) {
  if (screenSaver_ == active) return;
  screenSaver_ = active;
  emit changed(active ? LockScreenPresence::Event::screensaverStarted
                      : LockScreenPresence::Event::screensaverStopped);
}

void LogindLockSource::setLocked(bool locked) {
  if (locked_ == locked) return;
  const bool first = !locked_.has_value();
  locked_ = locked;
  if (first && !locked) return;  // an unlocked session at start is no news
  emit changed(locked ? LockScreenPresence::Event::locked : LockScreenPresence::Event::unlocked);
}

}  // namespace tindra
