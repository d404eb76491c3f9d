// TodayAgenda: the day's events for the opened notch, in the user's calendar and time zone.
// All-day events come first and always read as upcoming; declined and cancelled events are left
// out. Titles on equal starts sort like a file browser: numbers by value, case ignored.
#pragma once

#include <unicode/calendar.h>
#include <unicode/locid.h>

#include <span>
#include <vector>

#include "base/enum_table.h"
#include "calendar/calendar_event_info.h"

namespace tindra {

class TodayAgenda {
 public:
  enum class Status { ended, now, upcoming };

  struct Entry {
    CalendarEventInfo event;
    Status status;
    friend bool operator==(const Entry&, const Entry&) = default;
  };

  // The events overlapping the calendar day of `now` (seconds since 1970) in `calendar`'s time
  // zone, sorted, with their status at `now`. `locale` orders the titles.
  static std::vector<Entry> entries(std::span<const CalendarEventInfo> events, double now,
                                    const icu::Calendar& calendar,
                                    const icu::Locale& locale = icu::Locale::getDefault());

  struct Interval {
    double start;
    double end;
  };
  // The calendar day around `now`: from its first moment to the same wall time a day later
  // (23 or 25 hours on a day the clocks change).
  static Interval day(double now, const icu::Calendar& calendar);
};

template <>
struct EnumTable<TodayAgenda::Status> {
  using E = TodayAgenda::Status;
  static constexpr std::array cases{EnumCase{E::ended, "ended"}, EnumCase{E::now, "now"},
                                    EnumCase{E::upcoming, "upcoming"}};
};

}  // namespace tindra
