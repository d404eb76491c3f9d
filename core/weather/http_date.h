// HTTP dates in the form servers send in "Expires" and "Last-Modified" headers:
// "Wed, 18 May 2022 21:06:05 GMT" (English names, two-digit day, four-digit year, zone "GMT" or
// "UTC"). The weekday must be a real name but is not checked against the date.
#pragma once

#include <optional>
#include <string_view>

namespace tindra {

// Seconds since 1970, or none when the text is not such a date.
std::optional<double> parseHTTPDate(std::string_view text);

}  // namespace tindra
