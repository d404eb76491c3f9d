// Reads arbitrary bytes as an HTTP date and as an RFC 3339 date-time. A readable HTTP date,
// rewritten field by field as RFC 3339, must name the same instant.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/internet_date_time.h"
#include "weather/http_date.h"

namespace {

// "Wed, 18 May 2022 21:06:05 GMT" → "2022-05-18T21:06:05Z".
std::string asRFC3339(std::string_view http) {
  static constexpr std::string_view months = "janfebmaraprmayjunjulaugsepoctnovdec";
  std::string month(http.substr(8, 3));
  for (char& c : month) c = static_cast<char>(c | 0x20);
  const std::size_t index = months.find(month) / 3 + 1;
  char number[3];
  std::snprintf(number, sizeof number, "%02zu", index);
  return std::string(http.substr(12, 4)) + "-" + number + "-" + std::string(http.substr(5, 2)) +
         "T" + std::string(http.substr(17, 8)) + "Z";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (const auto rfc = tindra::parseInternetDateTime(text); rfc && !std::isfinite(*rfc)) {
    std::abort();
  }
  const auto http = tindra::parseHTTPDate(text);
  if (!http) return 0;
  const auto rfc = tindra::parseInternetDateTime(asRFC3339(text));
  if (!rfc || *rfc != *http) {
    std::fprintf(stderr, "HTTP date and RFC 3339 disagree\n");
    std::abort();
  }
  return 0;
}
