// Internet date-times (RFC 3339): "2024-05-01T12:30:05.25+02:00" to seconds since 1970.
// Strict: seconds and the zone are required, any fraction length is accepted, and a field out
// of range (month 13, hour 25, 31 April) makes the text unreadable rather than rolling over.
#pragma once

#include <expected>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class InternetDateTimeError {
  malformed,   // not the shape date "T" time zone
  outOfRange,  // a field beyond its calendar or clock range
};

template <>
struct EnumTable<InternetDateTimeError> {
  static constexpr std::array cases{EnumCase{InternetDateTimeError::malformed, "malformed"},
                                    EnumCase{InternetDateTimeError::outOfRange, "outOfRange"}};
};

// "T" and "Z" may also be written in lower case; a leap second (:60) counts as the next second.
std::expected<double, InternetDateTimeError> parseInternetDateTime(std::string_view text);

}  // namespace tindra
