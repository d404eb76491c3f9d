#include "base/internet_date_time.h"

#include <optional>

#include "base/utc_date_fields.h"

namespace tindra {
namespace {

class Cursor {
 public:
  explicit Cursor(std::string_view text) : text_(text) {}

  // Reads exactly `count` decimal digits.
  bool digits(int count, int& value) {
    if (text_.size() - position_ < static_cast<std::size_t>(count)) return false;
    value = 0;
    for (int i = 0; i < count; ++i) {
      const char c = text_[position_ + static_cast<std::size_t>(i)];
      if (c < '0' || c > '9') return false;
      value = value * 10 + (c - '0');
    }
    position_ += static_cast<std::size_t>(count);
    return true;
  }

  bool literal(char c) {
    if (position_ >= text_.size() || text_[position_] != c) return false;
    ++position_;
    return true;
  }

  bool literalEitherCase(char upper) {
    return literal(upper) || literal(static_cast<char>(upper - 'A' + 'a'));
  }

  // A "." and at least one digit, as a fraction of a second; 0 when there is no ".".
  bool fraction(double& value) {
    value = 0;
    if (!literal('.')) return true;
    double scale = 0.1;
    const std::size_t start = position_;
    while (position_ < text_.size() && text_[position_] >= '0' && text_[position_] <= '9') {
      value += (text_[position_] - '0') * scale;
      scale /= 10;
      ++position_;
    }
    return position_ > start;
  }

  bool atEnd() const { return position_ == text_.size(); }

 private:
  std::string_view text_;
  std::size_t position_ = 0;
};

}  // namespace

std::expected<double, InternetDateTimeError> parseInternetDateTime(std::string_view text) {
  Cursor cursor(text);
  int year, month, day, hour, minute, second;
  double fraction;
  const bool dateRead = cursor.digits(4, year) && cursor.literal('-') && cursor.digits(2, month) &&
                        cursor.literal('-') && cursor.digits(2, day);
  const bool timeRead = dateRead && cursor.literalEitherCase('T') && cursor.digits(2, hour) &&
                        cursor.literal(':') && cursor.digits(2, minute) && cursor.literal(':') &&
                        cursor.digits(2, second) && cursor.fraction(fraction);
  if (!timeRead) return std::unexpected(InternetDateTimeError::malformed);

  int offsetMinutes = 0;
  bool offsetInRange = true;
  if (!cursor.literalEitherCase('Z')) {
    const bool east = cursor.literal('+');
    if (!east && !cursor.literal('-')) return std::unexpected(InternetDateTimeError::malformed);
    int offsetHour, offsetMinute;
    if (!cursor.digits(2, offsetHour) || !cursor.literal(':') || !cursor.digits(2, offsetMinute)) {
      return std::unexpected(InternetDateTimeError::malformed);
    }
    offsetInRange = offsetHour <= 23 && offsetMinute <= 59;
    offsetMinutes = (offsetHour * 60 + offsetMinute) * (east ? 1 : -1);
  }
  if (!cursor.atEnd()) return std::unexpected(InternetDateTimeError::malformed);

  const std::optional<double> seconds = secondsSince1970({year, month, day, hour, minute, second});
  if (!seconds || !offsetInRange) return std::unexpected(InternetDateTimeError::outOfRange);
  return *seconds - offsetMinutes * 60 + fraction;
}

}  // namespace tindra
