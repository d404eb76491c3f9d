// LockStateSource: the session's lock and screen-saver changes, as they happen.
#pragma once

#include <QObject>

#include "base/service_check.h"
#include "lockscreen/lock_screen_presence.h"

namespace tindra {

class LockStateSource : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual void start() = 0;
  virtual ServiceCheck check() const = 0;

 signals:
  void changed(tindra::LockScreenPresence::Event event);
  void checkChanged();
};

}  // namespace tindra
