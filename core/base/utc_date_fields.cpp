#include "base/utc_date_fields.h"

namespace tindra {
namespace {

bool isLeapYear(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysInMonth(int year, int month) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && isLeapYear(year) ? 29 : kDays[month - 1];
}

}  // namespace

long long daysSince1970(int year, int month, int day) {
  // Counts from 1 March so the leap day falls at the end of the year (Hinnant's civil days).
  const long long y = static_cast<long long>(year) - (month <= 2 ? 1 : 0);
  const long long era = (y >= 0 ? y : y - 399) / 400;
  const long long yearOfEra = y - era * 400;
  const long long dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
  const long long dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return era * 146097 + dayOfEra - 719468;
}

std::optional<double> secondsSince1970(const UTCDateFields& f) {
  if (f.month < 1 || f.month > 12 || f.day < 1 || f.day > daysInMonth(f.year, f.month) ||
      f.hour < 0 || f.hour > 23 || f.minute < 0 || f.minute > 59 || f.second < 0 || f.second > 60) {
    return std::nullopt;
  }
  const long long days = daysSince1970(f.year, f.month, f.day);
  return static_cast<double>(days * 86400 + f.hour * 3600 + f.minute * 60 + f.second);
}

}  // namespace tindra
