// ServiceCheck: how a backend's service answers, in one sentence for a person: "reading the
// battery from UPower", "UPower is not running: no battery is shown". Providers copy every
// change into the diagnostics log.
#pragma once

#include "base/diagnostics_log.h"
#include "base/sentence.h"

namespace tindra {

struct ServiceCheck {
  DiagnosticsLog::Outcome outcome = DiagnosticsLog::Outcome::ok;
  Sentence text;

  friend bool operator==(const ServiceCheck&, const ServiceCheck&) = default;
};

}  // namespace tindra
