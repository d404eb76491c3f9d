// The screen lock on Linux: logind's session on the system bus and the screen saver on the
// session bus. Without a system bus the screen saver is still followed.
#include <QDBusConnection>

#include "lockscreen/linux/logind_lock_source.h"

namespace tindra {

std::unique_ptr<LockStateSource> LockStateSource::forPlatform(SharedBackends&) {
  return std::make_unique<LogindLockSource>(QDBusConnection::systemBus(),
                                            QDBusConnection::sessionBus());
}

}  // namespace tindra
