// CalendarEventInfo: one calendar event as the notch needs it, filled by the app's calendar
// reader. Dates are seconds since 1970; `id` is the event's unique key everywhere.
#pragma once

#include <optional>
#include <string>

#include "calendar/meeting_link.h"

namespace tindra {

struct CalendarEventInfo {
  struct Coordinate {
    double latitude;
    double longitude;
    friend bool operator==(const Coordinate&, const Coordinate&) = default;
  };
  struct Color {
    double red;
    double green;
    double blue;
    friend bool operator==(const Color&, const Color&) = default;
  };

  std::string id{};
  std::string title{};
  double start = 0;
  double end = 0;
  bool isAllDay = false;
  std::optional<std::string> location{};
  std::optional<Coordinate> coordinate{};  // the structured location's point, when there is one
  std::optional<MeetingLink> meetingLink{};
  std::optional<Color> calendarColor{};
  bool isDeclinedOrCancelled = false;

  // All-day, declined and cancelled events never feature, count down or sound.
  bool isEligible() const { return !isAllDay && !isDeclinedOrCancelled; }

  friend bool operator==(const CalendarEventInfo&, const CalendarEventInfo&) = default;
};

}  // namespace tindra
