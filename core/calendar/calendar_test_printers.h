// Readable GoogleTest failure messages for the calendar value types. Test code only.
#pragma once

#include <ostream>

#include "calendar/departure_advice.h"
#include "calendar/event_countdown.h"
#include "calendar/event_time_format.h"
#include "calendar/featured_event.h"
#include "calendar/meeting_link.h"

namespace tindra {

inline void PrintTo(const MeetingLink& link, std::ostream* out) {
  *out << rawValue(link.service) << " " << link.url;
}

inline void PrintTo(const CalendarEventInfo& event, std::ostream* out) {
  *out << "event " << event.id << " " << event.start << "..." << event.end;
}

inline void PrintTo(const FeaturedEvent& featured, std::ostream* out) {
  PrintTo(featured.event, out);
  bool startsIn = featured.phase.phaseCase() == FeaturedEvent::Phase::Case::startsIn;
  *out << (startsIn ? " startsIn(" : " started(") << featured.phase.seconds() << ")";
}

inline void PrintTo(const EventCountdown& countdown, std::ostream* out) {
  *out << "countdown " << static_cast<int>(countdown.countdownCase()) << " " << countdown.minutes()
       << " " << countdown.minutesLeft();
}

inline void PrintTo(const EarText& text, std::ostream* out) {
  *out << "ear " << static_cast<int>(text.earCase()) << " " << text.count() << " " << text.date();
}

inline void PrintTo(const DepartureAdvice& advice, std::ostream* out) {
  *out << "advice " << static_cast<int>(advice.adviceCase()) << " " << advice.minutes();
}

}  // namespace tindra
