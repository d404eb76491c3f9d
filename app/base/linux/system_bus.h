// onSystemBus: a backend of a system service: the real one on the system bus, or, in a session
// without a system bus (a container, a minimal session), the do-nothing one whose check says so.
// `missing` says what the user misses, with %1 for the bus's own error.
#pragma once

#include <QDBusConnection>
#include <QDBusError>
#include <memory>

#include "base/backend.h"

namespace tindra {

template <class Null, class Make>
std::unique_ptr<typename Null::Interface> onSystemBus(const Sentence& missing, Make makeReal) {
  QDBusConnection bus = QDBusConnection::systemBus();
  if (!bus.isConnected()) {
    return std::make_unique<Null>(missing.arg(bus.lastError().message()),
                                  DiagnosticsLog::Outcome::failed);
  }
  return makeReal(bus);
}

}  // namespace tindra
