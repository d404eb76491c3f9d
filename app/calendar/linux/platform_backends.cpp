// The calendars on Linux: iCalendar files, folders and subscribed addresses; there is no routing
// service for travel times.
#include "base/wall_clock.h"
#include "calendar/linux/icalendar_backend.h"
#include "calendar/travel_time_estimator.h"

namespace tindra {

std::unique_ptr<CalendarBackend> CalendarBackend::forPlatform(SharedBackends&) {
  return std::make_unique<ICalendarBackend>(ICalendarBackend::defaultPlaces(), secondsSince1970);
}

std::unique_ptr<TravelTimeEstimator> TravelTimeEstimator::forPlatform() {
  return std::make_unique<NullTravelTimeEstimator>();
}

}  // namespace tindra
