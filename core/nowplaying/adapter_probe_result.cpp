#include "nowplaying/adapter_probe_result.h"

namespace tindra {

std::string_view name(AdapterProbeResult::Kind kind) {
  switch (kind) {
    case AdapterProbeResult::Kind::failed:
      return "failed";
    case AdapterProbeResult::Kind::notBundled:
      return "notBundled";
    case AdapterProbeResult::Kind::passed:
      return "passed";
    case AdapterProbeResult::Kind::timedOut:
      return "timedOut";
    case AdapterProbeResult::Kind::launchFailed:
      return "launchFailed";
  }
  return "failed";
}

}  // namespace tindra
