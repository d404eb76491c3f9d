// RFC 3339 date-times as the forecast service writes them ("2022-05-18T21:00:00Z"): date, "T",
// time with seconds, an optional fraction of any length, and "Z" or "±hh:mm". Anything else,
// including out-of-range fields, is unreadable.
#pragma once

#include <optional>
#include <string_view>

namespace tindra {

// Seconds since 1970, or none when the text is not such a date-time.
std::optional<double> parseRFC3339DateTime(std::string_view text);

}  // namespace tindra
