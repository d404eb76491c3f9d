// LockStateSource: the session's lock and screen-saver changes, as they happen.
// LockStateSource::Null is the do-nothing source of a session without a lock to follow.
#pragma once

#include "base/backend.h"
#include "lockscreen/lock_screen_presence.h"

namespace tindra {

class LockStateSource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<LockStateSource>;

 signals:
  void changed(tindra::LockScreenPresence::Event event);
};

}  // namespace tindra
