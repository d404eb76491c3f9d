// RestartBackoff: how long to wait before restarting a child process that died, doubling from
// `initialDelay` up to `maxDelay`, forgetting past failures after a run of `stableAfter` seconds,
// and saying when enough failures in a row call for re-testing the adapter.
#pragma once

#include <cstdint>

namespace tindra {

struct RestartBackoff {
  // Clamps: delays and the stable time are at least 0, maxDelay at least initialDelay, and at
  // least one failure before a retest. Non-finite values fall to the lower bound.
  RestartBackoff(double initialDelay, double maxDelay, double stableAfter,
                 std::int64_t failuresBeforeRetest);

  // The stream source's values: 0.5, 1, 2, 4, 8, 16, 30, 30 … seconds; retest after 5.
  static RestartBackoff streamSource() { return RestartBackoff(0.5, 30, 30, 5); }

  // Records a failure of a child started at `startedAt` that died at `now` and returns the delay
  // in seconds before the next start.
  double nextDelay(double startedAt, double now);
  // True once `failuresBeforeRetest` failures came in a row.
  bool shouldRetest() const { return consecutiveFailures >= failuresBeforeRetest; }
  void reset() { consecutiveFailures = 0; }

  double initialDelay;
  double maxDelay;
  double stableAfter;
  std::int64_t failuresBeforeRetest;
  std::int64_t consecutiveFailures = 0;

  friend bool operator==(const RestartBackoff&, const RestartBackoff&) = default;
};

}  // namespace tindra
