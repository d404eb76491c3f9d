// EventCountdown: the whole minutes until an event starts, or since it started and left, for
// the notch's countdown. Minutes to go and minutes left round up (30 s to go is 1 minute);
// minutes since the start round down.
#pragma once

#include <cstdint>

#include "base/enum_table.h"
#include "calendar/calendar_event_info.h"

namespace tindra {

class EventCountdown {
 public:
  enum class Case { startsIn, underWay, ended };

  static EventCountdown startsIn(std::int64_t minutes) { return {Case::startsIn, minutes, 0}; }
  static EventCountdown underWay(std::int64_t minutesSinceStart, std::int64_t minutesLeft) {
    return {Case::underWay, minutesSinceStart, minutesLeft};
  }
  static EventCountdown ended() { return {Case::ended, 0, 0}; }

  Case countdownCase() const { return case_; }
  std::int64_t minutes() const { return first_; }            // startsIn
  std::int64_t minutesSinceStart() const { return first_; }  // underWay
  std::int64_t minutesLeft() const { return second_; }       // underWay

  friend bool operator==(const EventCountdown&, const EventCountdown&) = default;

 private:
  EventCountdown(Case c, std::int64_t first, std::int64_t second)
      : case_(c), first_(first), second_(second) {}
  Case case_;
  std::int64_t first_;
  std::int64_t second_;
};

template <>
struct EnumTable<EventCountdown::Case> {
  using E = EventCountdown::Case;
  static constexpr std::array cases{EnumCase{E::startsIn, "startsIn"},
                                    EnumCase{E::underWay, "underWay"}, EnumCase{E::ended, "ended"}};
};

// The countdown of `event` at `now`. Stops the program on a corrupt (not finite) date.
EventCountdown countdown(const CalendarEventInfo& event, double now);

struct HoursAndMinutes {
  std::int64_t hours;
  std::int64_t minutes;
  friend bool operator==(const HoursAndMinutes&, const HoursAndMinutes&) = default;
};

// Splits a minute count into hours and minutes; a negative count counts as 0.
HoursAndMinutes hoursAndMinutes(std::int64_t minutes);

}  // namespace tindra
