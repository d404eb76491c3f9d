// EventTimeFormat: how the ear beside the notch writes an event's time (the setting
// calendarTimeFormat, stored by raw value), and EarText, what the ear shows. The hour figure is
// truncated, not rounded: 119 minutes to go shows as 1 hour, so the ear never claims more time
// than is left.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/enum_table.h"
#include "calendar/calendar_event_info.h"

namespace tindra {

enum class EventTimeFormat { countdown, startTime, both };

template <>
struct EnumTable<EventTimeFormat> {
  static constexpr std::array cases{EnumCase{EventTimeFormat::countdown, "countdown"},
                                    EnumCase{EventTimeFormat::startTime, "startTime"},
                                    EnumCase{EventTimeFormat::both, "both"}};
};

// True for countdown and both.
constexpr bool showsCountdown(EventTimeFormat format) {
  return format != EventTimeFormat::startTime;
}
// True for both only.
constexpr bool showsStartTime(EventTimeFormat format) {
  return format == EventTimeFormat::both;
}

class EarText {
 public:
  enum class Case { minutes, hours, startTime, now };

  static EarText minutes(std::int64_t count) { return {Case::minutes, count, 0}; }
  static EarText hours(std::int64_t count) { return {Case::hours, count, 0}; }
  static EarText startTime(double date) { return {Case::startTime, 0, date}; }
  static EarText now() { return {Case::now, 0, 0}; }

  Case earCase() const { return case_; }
  std::int64_t count() const { return count_; }  // minutes, hours
  double date() const { return date_; }          // startTime, seconds since 1970

  friend bool operator==(const EarText&, const EarText&) = default;

 private:
  EarText(Case c, std::int64_t count, double date) : case_(c), count_(count), date_(date) {}
  Case case_;
  std::int64_t count_;
  double date_;
};

template <>
struct EnumTable<EarText::Case> {
  using E = EarText::Case;
  static constexpr std::array cases{EnumCase{E::minutes, "minutes"}, EnumCase{E::hours, "hours"},
                                    EnumCase{E::startTime, "startTime"}, EnumCase{E::now, "now"}};
};

// `now` once the event has started; else its start time or the time to go, as `format` asks.
EarText earText(const CalendarEventInfo& event, double now, EventTimeFormat format);

// The time to go for a bare number of seconds: minutes below an hour, else whole hours.
EarText earText(double interval);

}  // namespace tindra
