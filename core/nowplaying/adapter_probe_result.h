// AdapterProbeResult: how the adapter's self-test ended. Only `passed` lets the adapter stream
// feed the notch; every other result selects the player scripts.
#pragma once

#include <cstdint>
#include <string_view>

namespace tindra {

struct AdapterProbeResult {
  enum class Kind { failed, notBundled, passed, timedOut, launchFailed };

  Kind kind;
  std::int32_t exitStatus = 0;  // meaningful for `failed` only

  static AdapterProbeResult failed(std::int32_t exitStatus) { return {Kind::failed, exitStatus}; }
  static AdapterProbeResult notBundled() { return {Kind::notBundled}; }
  static AdapterProbeResult passed() { return {Kind::passed}; }
  static AdapterProbeResult timedOut() { return {Kind::timedOut}; }
  static AdapterProbeResult launchFailed() { return {Kind::launchFailed}; }

  // Exit statuses matter only between two `failed` results.
  friend bool operator==(const AdapterProbeResult& a, const AdapterProbeResult& b) {
    return a.kind == b.kind && (a.kind != Kind::failed || a.exitStatus == b.exitStatus);
  }
};

// The case name, for logs and diagnostics ("timedOut").
std::string_view name(AdapterProbeResult::Kind kind);

}  // namespace tindra
