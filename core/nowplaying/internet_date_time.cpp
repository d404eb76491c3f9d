#include "nowplaying/internet_date_time.h"

#include <cstdint>

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

bool isLeapYear(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysInMonth(int year, int month) {
  static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && isLeapYear(year) ? 29 : days[month - 1];
}

// Days from 1970-01-01 to the given proleptic Gregorian date (Howard Hinnant's algorithm).
std::int64_t daysFromCivil(int year, int month, int day) {
  const int y = month <= 2 ? year - 1 : year;
  const int era = (y >= 0 ? y : y - 399) / 400;
  const int yearOfEra = y - era * 400;
  const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return static_cast<std::int64_t>(era) * 146097 + dayOfEra - 719468;
}

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

  const bool dateInRange = month >= 1 && month <= 12 && day >= 1 && day <= daysInMonth(year, month);
  const bool timeInRange = hour <= 23 && minute <= 59 && second <= 60;
  if (!dateInRange || !timeInRange || !offsetInRange) {
    return std::unexpected(InternetDateTimeError::outOfRange);
  }
  const std::int64_t seconds = daysFromCivil(year, month, day) * 86400 + hour * 3600 + minute * 60 +
                               second - offsetMinutes * 60;
  return static_cast<double>(seconds) + fraction;
}

}  // namespace tindra
