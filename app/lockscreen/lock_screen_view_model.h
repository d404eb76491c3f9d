// LockScreenViewModel: what the notch needs to know of the screen lock: whether the screen is
// locked or the screen saver runs, while the notch steps aside.
#pragma once

#include <QObject>

#include "base/assign_if_changed.h"

namespace tindra {

class LockScreenViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool locked READ locked NOTIFY lockedChanged)

 public:
  using QObject::QObject;

  bool locked() const { return locked_; }
  void setLocked(bool locked) {
    if (assignIfChanged(locked_, locked)) emit lockedChanged(locked_);
  }

 signals:
  void lockedChanged(bool locked);

 private:
  bool locked_ = false;
};

}  // namespace tindra
