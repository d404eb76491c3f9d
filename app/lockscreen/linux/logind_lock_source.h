// LogindLockSource: the lock state from logind's session on the system bus (its Lock and Unlock
// signals and the LockedHint the screen locker sets) and the screen saver from the session bus
// (ActiveChanged of org.freedesktop.ScreenSaver or org.gnome.ScreenSaver). The session is the
// one this process runs in (GetSessionByPID), else XDG_SESSION_ID's; it is found again when
// logind comes back. Repeated news of the same state are sent once.
#pragma once

#include <QDBusConnection>
#include <optional>

#include "base/dbus/dbus_service_follower.h"
#include "lockscreen/lock_state_source.h"

namespace tindra {

class LogindLockSource final : public LockStateSource {
  Q_OBJECT

 public:
  LogindLockSource(QDBusConnection systemBus, QDBusConnection sessionBus,
                   QObject* parent = nullptr);

  void start() override;

 private slots:
  void onScreenSaver(bool active);

 private:
  void findSession();
  void findSession(const QString& id);  // by XDG_SESSION_ID
  void doesNotAnswer(const QString& error);
  void followSession(const QString& path);
  void onSessionSignal(const QDBusMessage& message);
  // News of the lock from the session itself, newer than any answer still on its way.
  void news(bool locked);
  void setLocked(bool locked);

  DBusServiceFollower logind_;
  QDBusConnection session_;
  QString sessionPath_;
  std::optional<bool> locked_;
  std::optional<bool> screenSaver_;
  bool newsSinceAsked_ = false;
};

}  // namespace tindra
