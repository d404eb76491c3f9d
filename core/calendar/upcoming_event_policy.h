// UpcomingEventPolicy: which calendar event the notch features and when. An event is featured
// from `leadTime` seconds before its start (or earlier, from when the user opened it) until
// `lingerAfterStart` seconds after it, or until its end when that comes first. Pure functions;
// dates are seconds since 1970.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>

#include "calendar/calendar_event_info.h"
#include "calendar/featured_event.h"

namespace tindra {

struct UpcomingEventPolicy {
  // The default of the lead-minutes setting (10 minutes).
  static constexpr double defaultLeadTime = 600;
  // Five minutes: time enough to join a little late; after that the notch goes back to what it
  // showed before. Meetings shorter than that stop being featured at their end.
  static constexpr double defaultLingerAfterStart = 300;

  // Event id to the date the user opened it ahead of its lead period.
  using OpenedAt = std::map<std::string, double, std::less<>>;

  double leadTime = defaultLeadTime;
  double lingerAfterStart = defaultLingerAfterStart;

  // Eligible and start - leadTime <= now < start.
  static bool isInLeadPeriod(const CalendarEventInfo& event, double now, double leadTime);

  // The earliest lead-period start still to come, for the app's wake-up timer.
  static std::optional<double> nextLeadPeriodStart(std::span<const CalendarEventInfo> events,
                                                   double now, double leadTime);

  // The first eligible event that has not ended (one under way counts).
  static std::optional<CalendarEventInfo> nextEvent(std::span<const CalendarEventInfo> events,
                                                    double now);

  // The event to feature now, with its phase, or none.
  std::optional<FeaturedEvent> featured(std::span<const CalendarEventInfo> events, double now,
                                        const OpenedAt& openedAt = {}) const;

  // When `event` stops being featured.
  double closingDate(const CalendarEventInfo& event) const;

  // The duration to offer with began(upcomingEvent): the seconds until the featured event's
  // window closes, so the notch lets go by itself even if the provider's ended comes late.
  double activityDuration(const FeaturedEvent& featured) const;
};

}  // namespace tindra
