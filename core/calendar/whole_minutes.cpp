#include "calendar/whole_minutes.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace tindra {

std::int64_t wholeMinutes(double rounded) {
  // 2^63 is exactly representable; every double below it and at or above -2^63 converts.
  constexpr double limit = 9223372036854775808.0;
  if (!std::isfinite(rounded) || rounded >= limit || rounded < -limit) {
    std::fprintf(stderr, "minute figure out of range: %g\n", rounded);
    std::abort();
  }
  return static_cast<std::int64_t>(rounded);
}

}  // namespace tindra
