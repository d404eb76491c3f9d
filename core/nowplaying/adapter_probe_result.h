// AdapterProbeResult: how the adapter's self-test ended. Only `passed` lets the adapter stream
// feed the notch; every other result selects the player scripts.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/enum_table.h"

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

template <>
struct EnumTable<AdapterProbeResult::Kind> {
  static constexpr std::array cases{
      EnumCase{AdapterProbeResult::Kind::failed, "failed"},
      EnumCase{AdapterProbeResult::Kind::notBundled, "notBundled"},
      EnumCase{AdapterProbeResult::Kind::passed, "passed"},
      EnumCase{AdapterProbeResult::Kind::timedOut, "timedOut"},
      EnumCase{AdapterProbeResult::Kind::launchFailed, "launchFailed"}};
};

}  // namespace tindra
