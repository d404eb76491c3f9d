#include "weather/http_date.h"

#include <array>
#include <cstddef>

#include "base/ascii_text.h"
#include "base/utc_date_fields.h"

namespace tindra {
namespace {

constexpr std::array<std::string_view, 7> kWeekdays{"mon", "tue", "wed", "thu",
                                                    "fri", "sat", "sun"};
constexpr std::array<std::string_view, 12> kMonths{"jan", "feb", "mar", "apr", "may", "jun",
                                                   "jul", "aug", "sep", "oct", "nov", "dec"};

// Index of the three-letter name in `names`, or none.
template <std::size_t N>
std::optional<int> nameIndex(std::string_view text, const std::array<std::string_view, N>& names) {
  for (std::size_t i = 0; i < N; ++i) {
    if (asciiEqualsIgnoringCase(text, names[i])) return static_cast<int>(i);
  }
  return std::nullopt;
}

std::optional<int> number(std::string_view text) {
  if (text.empty()) return std::nullopt;
  int value = 0;
  for (char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

}  // namespace

std::optional<double> parseHTTPDate(std::string_view text) {
  // Fixed layout: "Www, dd Mmm yyyy hh:mm:ss " followed by the zone.
  constexpr std::string_view kPunctuation = "___, __ ___ ____ __:__:__ ";
  if (text.size() < kPunctuation.size() + 3) return std::nullopt;
  for (std::size_t i = 0; i < kPunctuation.size(); ++i) {
    if (kPunctuation[i] != '_' && kPunctuation[i] != text[i]) return std::nullopt;
  }
  const std::string_view zone = text.substr(kPunctuation.size());
  if (!asciiEqualsIgnoringCase(zone, "GMT") && !asciiEqualsIgnoringCase(zone, "UTC"))
    return std::nullopt;
  if (!nameIndex(text.substr(0, 3), kWeekdays)) return std::nullopt;

  const auto day = number(text.substr(5, 2));
  const auto month = nameIndex(text.substr(8, 3), kMonths);
  const auto year = number(text.substr(12, 4));
  const auto hour = number(text.substr(17, 2));
  const auto minute = number(text.substr(20, 2));
  const auto second = number(text.substr(23, 2));
  if (!day || !month || !year || !hour || !minute || !second) return std::nullopt;
  return secondsSince1970({*year, *month + 1, *day, *hour, *minute, *second});
}

}  // namespace tindra
