// LogindLockSource: the lock state from logind's session on the system bus (its Lock and Unlock
// signals and the LockedHint the screen locker sets) and the screen saver from the session bus
// (ActiveChanged of org.freedesktop.ScreenSaver or org.gnome.ScreenSaver). The session is the
// one this process runs in (GetSessionByPID), else XDG_SESSION_ID's. Repeated news of the same
// state are sent once.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QVariantMap>
#include <optional>

#include "lockscreen/lock_state_source.h"

namespace tindra {

class LogindLockSource final : public LockStateSource {
  Q_OBJECT

 public:
  LogindLockSource(QDBusConnection systemBus, QDBusConnection sessionBus,
                   QObject* parent = nullptr);

  void start() override;

 private slots:
  void onLock();
  void onUnlock();
  void onSessionProperties(const QString& interface, const QVariantMap& changed,
                           const QStringList& invalidated);
  void onScreenSaver(bool active);

 private:
  void findSession();
  void followSession(const QString& path);
  void setLocked(bool locked);

  QDBusConnection system_;
  QDBusConnection session_;
  QDBusServiceWatcher watcher_;
  QString sessionPath_;
  std::optional<bool> locked_;
  std::optional<bool> screenSaver_;
};

}  // namespace tindra
