// Backend: what every provider's backend has in common: it is started once by its provider, and
// it says in a ServiceCheck how its service answers, with checkChanged on every change, which the
// provider copies into the diagnostics log. Readings are reported as they change, never polled.
//
// Every backend interface has a real backend per platform, a do-nothing one (NullBackend) and a
// fake one (TINDRA_FAKE). What happens when a service is missing:
// - A service that cannot be there in this session (no system bus, no X server to take keys
//   from, a platform without it) means no real backend is made: the provider gets the
//   do-nothing backend, whose check says why and what the user misses.
// - A service that is missing now but may come (UPower not started yet, a sound server or BlueZ
//   restarting) is the real backend's to follow: its check says the service is missing, its
//   readings are dropped, and it reads the service again when it returns, without a restart of
//   Tindra. A service leaving while Tindra runs is the same case.
// Main thread only.
#pragma once

#include <QObject>

#include "base/assign_if_changed.h"
#include "base/service_check.h"

namespace tindra {

class Backend : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  // Begins following the service. Readings may arrive before or after this returns.
  virtual void start() = 0;
  const ServiceCheck& check() const { return check_; }

 signals:
  void checkChanged();

 protected:
  void setCheck(DiagnosticsLog::Outcome outcome, const Sentence& text) {
    if (assignIfChanged(check_, ServiceCheck{outcome, text})) emit checkChanged();
  }

 private:
  ServiceCheck check_;
};

// The do-nothing backend of `Interface`: it reads nothing, and its check says why. Interfaces
// that take commands give NullBackend<Interface> do-nothing overrides in a class of their own.
template <class Of>
class NullBackend : public Of {
 public:
  using Interface = Of;

  explicit NullBackend(const Sentence& reason,
                       DiagnosticsLog::Outcome outcome = DiagnosticsLog::Outcome::degraded) {
    this->setCheck(outcome, reason);
  }

  void start() override {}
};

}  // namespace tindra
