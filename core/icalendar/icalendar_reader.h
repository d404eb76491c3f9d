// ICalendarReader: one iCalendar document (a feed, a file, one event of a folder calendar) read
// with libical into the events that overlap a window of time, recurrences expanded, and the
// to-dos. Times are resolved in the document's own time zones (VTIMEZONE, else the system's
// database); floating times and dates are read in the user's zone. Cancelled events and events
// the user declined are kept, flagged, so the policies leave them out the way they always do.
//
// Outside input: a document that is not iCalendar, is cut short or is too big is refused with
// its reason, so the caller keeps the last good copy. Recurrence is capped, so a rule that never
// ends (every second, no COUNT or UNTIL) costs a bounded amount of work.
// Not thread-safe: libical caches time zones without a lock; use it from one thread.
#pragma once

#include <cstddef>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/enum_table.h"
#include "calendar/calendar_event_info.h"
#include "calendar/reminder_item.h"

namespace tindra {

struct ICalendarDocument {
  std::string name;                               // the calendar's own name; empty when none
  std::optional<CalendarEventInfo::Color> color;  // the calendar's own colour, when it gives one
  std::optional<double> refreshInterval;          // seconds the publisher asks between fetches
  std::vector<CalendarEventInfo> events;          // occurrences overlapping the window
  std::vector<ReminderItem> reminders;
  std::size_t skippedComponents = 0;  // events and to-dos without a start or a usable time
  bool expansionCapped = false;       // some rule had more occurrences than are expanded
};

enum class ICalendarError { tooLarge, notICalendar, truncated, malformed };

template <>
struct EnumTable<ICalendarError> {
  using E = ICalendarError;
  static constexpr std::array cases{
      EnumCase{E::tooLarge, "tooLarge"}, EnumCase{E::notICalendar, "notICalendar"},
      EnumCase{E::truncated, "truncated"}, EnumCase{E::malformed, "malformed"}};
};

// A sentence for diagnostics: "the document is not iCalendar".
std::string_view describe(ICalendarError error);

struct ICalendarReadOptions {
  double windowStart = 0;  // seconds since 1970; occurrences ending after it
  double windowEnd = 0;    // and starting before it are returned
  std::string timeZone;    // IANA name for floating times and dates; UTC when empty or unknown
  std::vector<std::string> ownerAddresses;  // the user's mail addresses, to find declined events
  std::string idPrefix;  // the calendar's id: event ids are "<prefix>:<UID>[@<occurrence>]"
  std::optional<CalendarEventInfo::Color> color;  // when the document gives none
};

class ICalendarReader {
 public:
  // Larger documents are refused before parsing: a calendar of many years is a few megabytes.
  static constexpr std::size_t maxDocumentBytes = 32 * 1024 * 1024;
  // Occurrences of one event inside the window; a rule that fires more often is cut there.
  static constexpr std::size_t maxOccurrencesPerEvent = 1000;
  // Steps of one rule from its first occurrence, and of all rules of a document together.
  static constexpr std::size_t maxStepsPerRule = 100000;
  static constexpr std::size_t maxStepsPerDocument = 2000000;

  static std::expected<ICalendarDocument, ICalendarError> read(std::string_view bytes,
                                                               const ICalendarReadOptions& options);
};

}  // namespace tindra
