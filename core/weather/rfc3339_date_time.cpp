#include "weather/rfc3339_date_time.h"

#include <cstddef>

#include "weather/utc_date_fields.h"

namespace tindra {
namespace {

// Reads exactly `count` digits at `position`, moving past them.
std::optional<int> digits(std::string_view text, std::size_t& position, int count) {
  if (position + count > text.size()) return std::nullopt;
  int value = 0;
  for (int i = 0; i < count; ++i) {
    const char c = text[position + i];
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  position += count;
  return value;
}

bool literal(std::string_view text, std::size_t& position, char expected) {
  if (position >= text.size() || text[position] != expected) return false;
  ++position;
  return true;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// The fraction after the seconds, as a value in [0, 1); "." must be followed by a digit.
std::optional<double> fraction(std::string_view text, std::size_t& position) {
  if (!literal(text, position, '.')) return 0.0;
  double value = 0;
  double scale = 0.1;
  const std::size_t start = position;
  while (position < text.size() && isDigit(text[position])) {
    value += (text[position] - '0') * scale;
    scale /= 10;
    ++position;
  }
  if (position == start) return std::nullopt;
  return value;
}

// The zone's offset from UTC in seconds: "Z" (either case) or "±hh:mm".
std::optional<int> offset(std::string_view text, std::size_t& position) {
  if (position >= text.size()) return std::nullopt;
  const char sign = text[position++];
  if (sign == 'Z' || sign == 'z') return 0;
  if (sign != '+' && sign != '-') return std::nullopt;
  const auto hours = digits(text, position, 2);
  if (!hours || !literal(text, position, ':')) return std::nullopt;
  const auto minutes = digits(text, position, 2);
  if (!minutes || *hours > 23 || *minutes > 59) return std::nullopt;
  const int seconds = *hours * 3600 + *minutes * 60;
  return sign == '-' ? -seconds : seconds;
}

}  // namespace

std::optional<double> parseRFC3339DateTime(std::string_view text) {
  std::size_t position = 0;
  const auto year = digits(text, position, 4);
  if (!year || !literal(text, position, '-')) return std::nullopt;
  const auto month = digits(text, position, 2);
  if (!month || !literal(text, position, '-')) return std::nullopt;
  const auto day = digits(text, position, 2);
  if (!day || position >= text.size() || (text[position] != 'T' && text[position] != 't')) {
    return std::nullopt;
  }
  ++position;
  const auto hour = digits(text, position, 2);
  if (!hour || !literal(text, position, ':')) return std::nullopt;
  const auto minute = digits(text, position, 2);
  if (!minute || !literal(text, position, ':')) return std::nullopt;
  const auto second = digits(text, position, 2);
  if (!second) return std::nullopt;
  const auto fractionOfSecond = fraction(text, position);
  const auto zoneOffset = offset(text, position);
  if (!fractionOfSecond || !zoneOffset || position != text.size()) return std::nullopt;

  const auto local = secondsSince1970({*year, *month, *day, *hour, *minute, *second});
  if (!local) return std::nullopt;
  return *local + *fractionOfSecond - *zoneOffset;
}

}  // namespace tindra
