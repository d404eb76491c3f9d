// LockStateSource: the session's lock and screen-saver changes, as they happen.
// LockStateSource::Null is the do-nothing source of a session without a lock to follow.
#pragma once

#include <memory>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "lockscreen/lock_screen_presence.h"

namespace tindra {

class LockStateSource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<LockStateSource>;

  // This platform's lock and screen saver, or the do-nothing source where there is none to
  // follow (made in the platform's folder).
  static std::unique_ptr<LockStateSource> forPlatform(SharedBackends& shared);

 signals:
  void changed(tindra::LockScreenPresence::Event event);
};

}  // namespace tindra
