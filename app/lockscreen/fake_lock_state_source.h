// FakeLockStateSource: a screen lock for tests and the demo to turn on and off by hand.
#pragma once

#include "lockscreen/lock_state_source.h"

namespace tindra {

class FakeLockStateSource final : public LockStateSource {
 public:
  using LockStateSource::LockStateSource;

  void start() override {}
  ServiceCheck check() const override {
    return {DiagnosticsLog::Outcome::ok, QStringLiteral("invented screen lock (TINDRA_FAKE)")};
  }
  void send(LockScreenPresence::Event event) { emit changed(event); }
};

}  // namespace tindra
