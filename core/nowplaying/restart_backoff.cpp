#include "nowplaying/restart_backoff.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tindra {
namespace {

// std::max keeps its first argument when the second is NaN, so a NaN falls to `floor`;
// +infinity is kept as it is (an infinite wait is what was asked for).
double atLeast(double floor, double value) {
  return std::max(floor, value);
}

}  // namespace

RestartBackoff::RestartBackoff(double initial, double max, double stable, std::int64_t failures)
    : initialDelay(atLeast(0, initial)),
      maxDelay(atLeast(initialDelay, max)),
      stableAfter(atLeast(0, stable)),
      failuresBeforeRetest(std::max<std::int64_t>(1, failures)) {}

double RestartBackoff::nextDelay(double startedAt, double now) {
  if (now - startedAt >= stableAfter) consecutiveFailures = 0;
  if (consecutiveFailures < std::numeric_limits<std::int64_t>::max()) ++consecutiveFailures;
  const auto exponent = static_cast<int>(std::min<std::int64_t>(consecutiveFailures, 33) - 1);
  return std::min(std::ldexp(initialDelay, exponent), maxDelay);
}

}  // namespace tindra
