// FakeLockStateSource: a screen lock for tests and the demo to turn on and off by hand.
#pragma once

#include "lockscreen/lock_state_source.h"

namespace tindra {

class FakeLockStateSource final : public LockStateSource {
  Q_OBJECT

 public:
  explicit FakeLockStateSource(QObject* parent = nullptr) : LockStateSource(parent) {
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("invented screen lock (TINDRA_FAKE)"), tr));
  }

  void start() override {}
  void send(LockScreenPresence::Event event) { emit changed(event); }
};

}  // namespace tindra
