#include "lockscreen/linux/logind_lock_source.h"

#include <unistd.h>

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString logind = QStringLiteral("org.freedesktop.login1");
const QString managerPath = QStringLiteral("/org/freedesktop/login1");
const QString manager = QStringLiteral("org.freedesktop.login1.Manager");
const QString sessionInterface = QStringLiteral("org.freedesktop.login1.Session");

QDBusMessage managerCall(const QString& method, const QVariant& argument) {
  QDBusMessage call = QDBusMessage::createMethodCall(logind, managerPath, manager, method);
  call << argument;
  return call;
}

}  // namespace

LogindLockSource::LogindLockSource(QDBusConnection systemBus, QDBusConnection sessionBus,
                                   QObject* parent)
    : LockStateSource(parent),
      system_(std::move(systemBus)),
      session_(std::move(sessionBus)),
      watcher_(logind, system_, QDBusServiceWatcher::WatchForRegistration) {
  setCheck(DiagnosticsLog::Outcome::ok, Sentence(QT_TR_NOOP("asking logind for the session"), tr));
}

void LogindLockSource::start() {
  // Any path: GNOME's saver speaks on /org/gnome/ScreenSaver, others on /ScreenSaver.
  for (const QString& interface :
       {QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver")}) {
    session_.connect(QString(), QString(), interface, QStringLiteral("ActiveChanged"), this,
                     SLOT(onScreenSaver(bool)));
  }
  connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, &LogindLockSource::findSession);
  findSession();
}

void LogindLockSource::findSession() {
  whenAnswered(
      system_.asyncCall(managerCall(QStringLiteral("GetSessionByPID"),
                                    QVariant::fromValue(static_cast<quint32>(::getpid())))),
      this, [this](const QDBusMessage& byProcess) {
        if (byProcess.type() == QDBusMessage::ReplyMessage) {
          followSession(byProcess.arguments().value(0).value<QDBusObjectPath>().path());
          return;
        }
        const QString id = qEnvironmentVariable("XDG_SESSION_ID");
        if (id.isEmpty()) {
          setCheck(
              DiagnosticsLog::Outcome::degraded,
              Sentence(QT_TR_NOOP("logind does not know this session (%1): the screen lock is not "
                                  "followed"),
                       tr)
                  .arg(byProcess.errorName()));
          return;
        }
        whenAnswered(system_.asyncCall(managerCall(QStringLiteral("GetSession"), id)), this,
                     [this](const QDBusMessage& byId) {
                       if (byId.type() == QDBusMessage::ReplyMessage) {
                         followSession(byId.arguments().value(0).value<QDBusObjectPath>().path());
                         return;
                       }
                       setCheck(
                           DiagnosticsLog::Outcome::degraded,
                           Sentence(QT_TR_NOOP("logind does not answer (%1): the screen lock is "
                                               "not followed"),
                                    tr)
                               .arg(byId.errorName()));
                     });
      });
}

void LogindLockSource::followSession(const QString& path) {
  if (path != sessionPath_) {
    // The session's signals: to drop for the session followed so far, and to take for this one.
    struct Signal {
      const QString& interface;
      const char* name;
      const char* slot;
    };
    const Signal sessionSignals[] = {
        {sessionInterface, "Lock", SLOT(onLock())},
        {sessionInterface, "Unlock", SLOT(onUnlock())},
        {dbus::properties, "PropertiesChanged",
         SLOT(onSessionProperties(QString, QVariantMap, QStringList))}};
    for (const Signal& signal : sessionSignals) {
      const QString name = QLatin1String(signal.name);
      if (!sessionPath_.isEmpty()) {
        system_.disconnect(logind, sessionPath_, signal.interface, name, this, signal.slot);
      }
      system_.connect(logind, path, signal.interface, name, this, signal.slot);
    }
    sessionPath_ = path;
  }
  QDBusMessage call =
      QDBusMessage::createMethodCall(logind, path, dbus::properties, QStringLiteral("Get"));
  call << sessionInterface << QStringLiteral("LockedHint");
  whenAnswered(system_.asyncCall(call), this, [this, path](const QDBusMessage& answer) {
    // A Lock or Unlock that came while we asked is newer than the answer.
    const QVariant hint = answer.arguments().value(0).value<QDBusVariant>().variant();
    if (hint.typeId() == QMetaType::Bool && !locked_) setLocked(hint.toBool());
    setCheck(
        DiagnosticsLog::Outcome::ok,
        Sentence(QT_TR_NOOP("following the screen lock of logind's session %1"), tr).arg(path));
  });
}

void LogindLockSource::onLock() {
  setLocked(true);
}

void LogindLockSource::onUnlock() {
  setLocked(false);
}

void LogindLockSource::onSessionProperties(const QString& interface, const QVariantMap& changed,
                                           const QStringList&) {
  const auto hint = changed.constFind(QStringLiteral("LockedHint"));
  if (interface == sessionInterface && hint != changed.constEnd() &&
      hint->typeId() == QMetaType::Bool) {
    setLocked(hint->toBool());
  }
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
