// UTCDateFields: a proleptic Gregorian date and time of day in UTC, as read from date texts, and
// its conversion to seconds since 1970. Out-of-range fields (month 13, 31 April, hour 24) are
// refused rather than rolled over.
#pragma once

#include <optional>

namespace tindra {

struct UTCDateFields {
  int year = 1970;
  int month = 1;  // 1–12
  int day = 1;    // 1–31, within the month
  int hour = 0;   // 0–23
  int minute = 0;
  int second = 0;  // 0–60; 60 is a leap second and counts as the next minute's first
};

// Seconds since 1970 of the fields, or none when a field is out of range.
std::optional<double> secondsSince1970(const UTCDateFields& fields);

// Days since 1970-01-01 of a valid Gregorian date (negative before it).
long long daysSince1970(int year, int month, int day);

}  // namespace tindra
