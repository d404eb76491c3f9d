#include "power/power_source_value.h"

#include <cmath>

namespace tindra {
namespace {

std::optional<std::int64_t> truncatedInteger(double value) {
  // 2^63 is exact as a double; anything at or beyond it (or NaN) does not fit.
  constexpr double limit = 9223372036854775808.0;
  if (!(value >= -limit && value < limit)) return std::nullopt;
  return static_cast<std::int64_t>(std::trunc(value));
}

}  // namespace

std::optional<bool> PowerSourceValue::boolean() const {
  if (const bool* value = std::get_if<bool>(&storage_)) return *value;
  if (const NumberObject* number = std::get_if<NumberObject>(&storage_)) {
    if (!std::isfinite(number->value)) return std::nullopt;
    return number->value != 0;
  }
  return std::nullopt;
}

std::optional<std::int64_t> PowerSourceValue::integer() const {
  if (const std::int64_t* value = std::get_if<std::int64_t>(&storage_)) return *value;
  if (const double* value = std::get_if<double>(&storage_)) return truncatedInteger(*value);
  if (const NumberObject* number = std::get_if<NumberObject>(&storage_)) {
    return truncatedInteger(number->value);
  }
  return std::nullopt;
}

}  // namespace tindra
