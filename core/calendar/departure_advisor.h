// DepartureAdvisor: decides which coming events need a travel time, turns a travel time and the
// user's buffer into a departure plan, and a plan and the time into advice. Pure functions;
// dates are seconds since 1970.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "calendar/calendar_event_info.h"
#include "calendar/departure_advice.h"
#include "calendar/departure_plan.h"

namespace tindra {

class DepartureAdvisor {
 public:
  // The furthest ahead an event may start and still get a travel time: three hours.
  static constexpr double travelLookAhead = 10800;

  // A timed, accepted event starting within three hours at a coordinate or a usable place.
  static bool needsTravelTime(const CalendarEventInfo& event, double now);

  // The trimmed place text, as typed, unless it is too short, a meeting link or a word like
  // "online" or "Zoom Meeting" that names no place.
  static std::optional<std::string> destination(std::optional<std::string_view> location);

  // None for a travel time that is not finite, negative or a day or longer. A negative buffer
  // counts as 0; a buffer whose seconds overflow stops the program.
  static std::optional<DeparturePlan> plan(double eventStart, double travelTime,
                                           std::int64_t bufferMinutes);

  static DepartureAdvice advice(const DeparturePlan& plan, double now);
};

}  // namespace tindra
