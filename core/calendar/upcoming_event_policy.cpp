#include "calendar/upcoming_event_policy.h"

namespace tindra {

namespace {

// Earlier start first; on equal starts one with a meeting link first; then the lower id.
bool precedes(const CalendarEventInfo& a, const CalendarEventInfo& b) {
  if (a.start != b.start) return a.start < b.start;
  bool aHasLink = a.meetingLink.has_value();
  bool bHasLink = b.meetingLink.has_value();
  if (aHasLink != bHasLink) return aHasLink;
  return a.id < b.id;  // UTF-8 byte order is code point order
}

// The least event kept by `keep`; on full ties the first in input order stays.
template <typename Keep>
const CalendarEventInfo* least(std::span<const CalendarEventInfo> events, const Keep& keep) {
  const CalendarEventInfo* best = nullptr;
  for (const CalendarEventInfo& event : events) {
    if (!keep(event)) continue;
    if (best == nullptr || precedes(event, *best)) best = &event;
  }
  return best;
}

}  // namespace

bool UpcomingEventPolicy::isInLeadPeriod(const CalendarEventInfo& event, double now,
                                         double leadTime) {
  return event.isEligible() && now >= event.start - leadTime && now < event.start;
}

std::optional<double> UpcomingEventPolicy::nextLeadPeriodStart(
    std::span<const CalendarEventInfo> events, double now, double leadTime) {
  std::optional<double> earliest;
  for (const CalendarEventInfo& event : events) {
    if (!event.isEligible()) continue;
    double opening = event.start - leadTime;
    if (opening > now && (!earliest || opening < *earliest)) earliest = opening;
  }
  return earliest;
}

std::optional<CalendarEventInfo> UpcomingEventPolicy::nextEvent(
    std::span<const CalendarEventInfo> events, double now) {
  const CalendarEventInfo* next = least(events, [&](const CalendarEventInfo& event) {
    return event.isEligible() && event.end > now;
  });
  if (next == nullptr) return std::nullopt;
  return *next;
}

double UpcomingEventPolicy::closingDate(const CalendarEventInfo& event) const {
  double closing = event.start + lingerAfterStart;
  if (event.end > event.start && event.end < closing) closing = event.end;
  return closing;
}

std::optional<FeaturedEvent> UpcomingEventPolicy::featured(
    std::span<const CalendarEventInfo> events, double now, const OpenedAt& openedAt) const {
  auto isCandidate = [&](const CalendarEventInfo& event) {
    if (!event.isEligible()) return false;
    double opening = event.start - leadTime;
    if (auto opened = openedAt.find(event.id);
        opened != openedAt.end() && opened->second < opening) {
      opening = opened->second;
    }
    return now >= opening && now < closingDate(event);
  };
  const CalendarEventInfo* chosen = least(events, isCandidate);
  if (chosen == nullptr) return std::nullopt;
  double untilStart = chosen->start - now;
  auto phase = untilStart > 0 ? FeaturedEvent::Phase::startsIn(untilStart)
                              : FeaturedEvent::Phase::started(now - chosen->start);
  return FeaturedEvent{*chosen, phase};
}

double UpcomingEventPolicy::activityDuration(const FeaturedEvent& featured) const {
  double untilStart = featured.phase.phaseCase() == FeaturedEvent::Phase::Case::startsIn
                          ? featured.phase.seconds()
                          : -featured.phase.seconds();
  return closingDate(featured.event) - featured.event.start + untilStart;
}

}  // namespace tindra
