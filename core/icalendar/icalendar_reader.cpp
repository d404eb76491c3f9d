#include "icalendar/icalendar_reader.h"

#include <libical/ical.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "base/ascii_text.h"
#include "base/hex_digit.h"
#include "calendar/meeting_link_parser.h"
#include "icalendar/icalendar_text.h"

namespace tindra {

std::string_view describe(ICalendarError error) {
  switch (error) {
    case ICalendarError::tooLarge:
      return "the document is larger than a calendar can be";
    case ICalendarError::notICalendar:
      return "the document is not iCalendar";
    case ICalendarError::truncated:
      return "the document is cut short";
    case ICalendarError::malformed:
      return "the document could not be read as iCalendar";
  }
  return "the document could not be read";
}

namespace {

struct ComponentFree {
  void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
struct IteratorFree {
  void operator()(icalrecur_iterator* iterator) const { icalrecur_iterator_free(iterator); }
};

// libical reports problems through a global error number and, built that way, aborts on them;
// outside documents must never stop the program.
void keepLibicalFromAborting() {
  static const bool once = [] {
    icalerror_set_errors_are_fatal(0);
    return true;
  }();
  (void)once;
}

std::optional<std::string> text(const char* value) {
  if (value == nullptr) return std::nullopt;
  const std::string_view trimmed = trimmedASCII(value);
  if (trimmed.empty()) return std::nullopt;
  return std::string(trimmed);
}

std::optional<std::string> propertyText(icalcomponent* component, icalproperty_kind kind) {
  icalproperty* property = icalcomponent_get_first_property(component, kind);
  return (property != nullptr) ? text(icalproperty_get_value_as_string(property)) : std::nullopt;
}

std::optional<std::string> xPropertyText(icalcomponent* component, std::string_view name) {
  for (icalproperty* p = icalcomponent_get_first_property(component, ICAL_X_PROPERTY); p != nullptr;
       p = icalcomponent_get_next_property(component, ICAL_X_PROPERTY)) {
    const char* xName = icalproperty_get_x_name(p);
    if ((xName != nullptr) && asciiEqualsIgnoringCase(xName, name))
      return text(icalproperty_get_x(p));
  }
  return std::nullopt;
}

// "#RRGGBB", with or without an alpha pair after it.
std::optional<CalendarEventInfo::Color> hexColor(std::string_view value) {
  if (!value.starts_with('#') || (value.size() != 7 && value.size() != 9)) return std::nullopt;
  double channels[3];
  for (int i = 0; i < 3; ++i) {
    const int high = hexDigitValue(value[1 + (2 * i)]);
    const int low = hexDigitValue(value[2 + (2 * i)]);
    if (high < 0 || low < 0) return std::nullopt;
    channels[i] = (high * 16 + low) / 255.0;
  }
  return CalendarEventInfo::Color{channels[0], channels[1], channels[2]};
}

std::string mailAddress(std::string_view address) {
  std::string lowered = asciiLowercased(trimmedASCII(address));
  if (lowered.starts_with("mailto:")) lowered.erase(0, 7);
  return lowered;
}

// The part of one document the reader is working through, with its budget of recurrence steps.
class CalendarReader {
 public:
  CalendarReader(const ICalendarReadOptions& options, ICalendarDocument& document)
      : options_(options), document_(document), local_(zoneNamed(options.timeZone)) {
    for (const std::string& address : options.ownerAddresses) {
      owners_.insert(mailAddress(address));
    }
  }

  void read(icalcomponent* calendar) {
    calendar_ = calendar;
    zones_.clear();
    readCalendarProperties();
    readEvents();
    readToDos();
  }

 private:
  // A VEVENT and the edited occurrences that share its UID.
  struct Series {
    icalcomponent* master = nullptr;
    std::vector<icalcomponent*> overrides;
  };

  static icaltimezone* zoneNamed(const std::string& name) {
    if (name.empty()) return icaltimezone_get_utc_timezone();
    icaltimezone* zone = icaltimezone_get_builtin_timezone(name.c_str());
    return (zone != nullptr) ? zone : icaltimezone_get_utc_timezone();
  }

  void readCalendarProperties() {
    if (document_.name.empty()) {
      document_.name = propertyText(calendar_, ICAL_NAME_PROPERTY)
                           .or_else([&] { return xPropertyText(calendar_, "X-WR-CALNAME"); })
                           .value_or("");
    }
    if (!document_.color) {
      const std::optional<std::string> color =
          propertyText(calendar_, ICAL_COLOR_PROPERTY).or_else([&] {
            return xPropertyText(calendar_, "X-APPLE-CALENDAR-COLOR");
          });
      if (color) document_.color = hexColor(*color);
    }
    if (!document_.refreshInterval) {
      const std::optional<std::string> interval =
          propertyText(calendar_, ICAL_REFRESHINTERVAL_PROPERTY).or_else([&] {
            return xPropertyText(calendar_, "X-PUBLISHED-TTL");
          });
      if (interval) {
        const icaldurationtype duration = icaldurationtype_from_string(interval->c_str());
        const int seconds = icaldurationtype_as_int(duration);
        if ((icaldurationtype_is_bad_duration(duration) == 0) && seconds > 0) {
          document_.refreshInterval = seconds;
        }
      }
    }
  }

  // The zone a TZID names: the document's own VTIMEZONE, else the system's database, else a
  // Windows zone name as Outlook writes it. Null leaves the time floating. Remembered, as the
  // database lookup compares the name with every zone it knows.
  icaltimezone* zoneForTZID(const char* tzid) {
    const auto known = zones_.find(std::string_view(tzid));
    if (known != zones_.end()) return known->second;
    icaltimezone* zone = lookUpZone(tzid);
    zones_.emplace(tzid, zone);
    return zone;
  }

  icaltimezone* lookUpZone(const char* tzid) const {
    if (icaltimezone* own = icalcomponent_get_timezone(calendar_, tzid)) return own;
    if (icaltimezone* known = icaltimezone_get_builtin_timezone(tzid)) return known;
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString iana;
    icu::TimeZone::getIDForWindowsID(icu::UnicodeString::fromUTF8(tzid), nullptr, iana, status);
    if (U_FAILURE(status) || iana.isEmpty())
      return nullptr;  // NOLINT(readability-implicit-bool-conversion)
    std::string name;
    iana.toUTF8String(name);
    return icaltimezone_get_builtin_timezone(name.c_str());
  }

  // `time` as read from `property`, with the zone its TZID names attached.
  icaltimetype zoned(icaltimetype time, icalproperty* property) {
    if (time.zone != nullptr || (time.is_date != 0) || (icaltime_is_utc(time) != 0)) return time;
    icalparameter* tzid = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    if (tzid == nullptr) return time;
    const char* name = icalparameter_get_tzid(tzid);
    if (name != nullptr) time.zone = zoneForTZID(name);
    return time;
  }

  icaltimetype startOf(icalcomponent* event) {
    icalproperty* property = icalcomponent_get_first_property(event, ICAL_DTSTART_PROPERTY);
    return (property != nullptr) ? zoned(icalproperty_get_dtstart(property), property)
                                 : icaltime_null_time();
  }

  // Seconds since 1970. Floating times are the user's wall clock; a date is its first moment in
  // the user's zone, so an all-day event covers the user's day wherever it was written.
  double seconds(icaltimetype time) const {
    const icaltimezone* zone = time.zone;
    if (time.is_date != 0) {
      time.is_date = 0;
      time.hour = time.minute = time.second = 0;
      zone = local_;
    } else if (zone == nullptr) {
      zone = local_;
    }
    // That far off, the hours a zone moves a time by no longer matter, and libical would first
    // work out every change of the zone's clocks up to that year, kept for as long as the
    // process runs: an end mistyped in the year 620210 took minutes and megabytes.
    if (time.year > lastZonedYear) zone = icaltimezone_get_utc_timezone();
    return static_cast<double>(icaltime_as_timet_with_zone(time, const_cast<icaltimezone*>(zone)));
  }

  bool overlapsWindow(double start, double end) const {
    return start < options_.windowEnd &&
           (end > options_.windowStart || (end <= start && start >= options_.windowStart));
  }

  // The length of an event: whole days for dates (so the end moves with the clocks), seconds
  // otherwise. An event without an end lasts a day when it is a date and no time otherwise.
  struct Length {
    int days = 0;
    double seconds = 0;
  };
  // Ten years at most: a longer "all-day" span is a mistake, not a holiday.
  static constexpr int longestDays = 3660;
  static constexpr int lastZonedYear = 2200;

  Length lengthOf(icalcomponent* event, icaltimetype start) {
    icaltimetype end = icaltime_null_time();
    if (icalproperty* p = icalcomponent_get_first_property(event, ICAL_DTEND_PROPERTY)) {
      end = zoned(icalproperty_get_dtend(p), p);
    } else if (icalproperty* d = icalcomponent_get_first_property(event, ICAL_DURATION_PROPERTY)) {
      const icaldurationtype duration = icalproperty_get_duration(d);
      if (start.is_date != 0) {
        const unsigned days =
            std::min(duration.days + (7 * duration.weeks), static_cast<unsigned>(longestDays));
        return {(duration.is_neg != 0) ? 0 : static_cast<int>(days), 0};
      }
      return {0, std::max(0.0, static_cast<double>(icaldurationtype_as_int(duration)))};
    }
    if (start.is_date != 0) {
      if (icaltime_is_null_time(end) != 0) return {1, 0};
      end.is_date = 1;
      const double days = (static_cast<double>(icaltime_as_timet(end)) -
                           static_cast<double>(icaltime_as_timet(start))) /
                          86400.0;
      return {static_cast<int>(std::clamp(std::lround(days), 0L, long{longestDays})), 0};
    }
    if (icaltime_is_null_time(end) != 0) return {};
    return {0, std::max(0.0, seconds(end) - seconds(start))};
  }

  double endOf(icaltimetype start, const Length& length) const {
    if (start.is_date == 0) return seconds(start) + length.seconds;
    icaltime_adjust(&start, length.days, 0, 0, 0);
    return seconds(start);
  }

  bool isDeclined(icalcomponent* event) const {
    if (owners_.empty()) return false;
    for (icalproperty* p = icalcomponent_get_first_property(event, ICAL_ATTENDEE_PROPERTY);
         p != nullptr; p = icalcomponent_get_next_property(event, ICAL_ATTENDEE_PROPERTY)) {
      const char* address = icalproperty_get_attendee(p);
      if (address == nullptr || !owners_.contains(mailAddress(address))) continue;
      icalparameter* partstat = icalproperty_get_first_parameter(p, ICAL_PARTSTAT_PARAMETER);
      if ((partstat != nullptr) && icalparameter_get_partstat(partstat) == ICAL_PARTSTAT_DECLINED)
        return true;
    }
    return false;
  }

  // Everything of an event but its times.
  CalendarEventInfo describedEvent(icalcomponent* event, std::string id) const {
    CalendarEventInfo info;
    info.id = std::move(id);
    info.title = propertyText(event, ICAL_SUMMARY_PROPERTY).value_or("");
    info.location = propertyText(event, ICAL_LOCATION_PROPERTY);
    if (icalproperty* geo = icalcomponent_get_first_property(event, ICAL_GEO_PROPERTY)) {
      const icalgeotype point = icalproperty_get_geo(geo);
      if (std::isfinite(point.lat) && std::isfinite(point.lon) && std::abs(point.lat) <= 90 &&
          std::abs(point.lon) <= 180) {
        info.coordinate = CalendarEventInfo::Coordinate{point.lat, point.lon};
      }
    }
    const std::optional<std::string> url = propertyText(event, ICAL_URL_PROPERTY);
    const std::optional<std::string> notes = propertyText(event, ICAL_DESCRIPTION_PROPERTY);
    info.meetingLink = MeetingLinkParser::link(url, info.location, notes);
    info.calendarColor = document_.color ? document_.color : options_.color;
    info.isDeclinedOrCancelled =
        icalcomponent_get_status(event) == ICAL_STATUS_CANCELLED || isDeclined(event);
    return info;
  }

  std::string idFor(const std::string& uid) const { return options_.idPrefix + ":" + uid; }
  std::string idFor(const std::string& uid, double occurrence) const {
    return idFor(uid) + "@" + std::to_string(static_cast<long long>(occurrence));
  }

  void add(icalcomponent* event, std::string id, icaltimetype start, const Length& length) {
    const double startSeconds = seconds(start);
    const double endSeconds = endOf(start, length);
    if (!overlapsWindow(startSeconds, endSeconds)) return;
    CalendarEventInfo info = describedEvent(event, std::move(id));
    info.start = startSeconds;
    info.end = endSeconds;
    info.isAllDay = start.is_date != 0;
    document_.events.push_back(std::move(info));
  }

  void readEvents() {
    std::map<std::string, Series> series;
    std::size_t index = 0;
    for (icalcomponent* event = icalcomponent_get_first_component(calendar_, ICAL_VEVENT_COMPONENT);
         event != nullptr;
         event = icalcomponent_get_next_component(calendar_, ICAL_VEVENT_COMPONENT)) {
      // Events without a UID are their own series.
      const std::string uid =
          propertyText(event, ICAL_UID_PROPERTY).value_or("#" + std::to_string(index));
      ++index;
      Series& entry = series[uid];
      if (icalcomponent_get_first_property(event, ICAL_RECURRENCEID_PROPERTY) != nullptr) {
        entry.overrides.push_back(event);
      } else if (entry.master == nullptr) {
        entry.master = event;
      } else {
        ++document_.skippedComponents;  // a second event under the same UID
      }
    }
    for (const auto& [uid, entry] : series) readSeries(uid, entry);
  }

  void readSeries(const std::string& uid, const Series& series) {
    std::set<double> edited;
    for (icalcomponent* edit : series.overrides) {
      icalproperty* recurrenceID =
          icalcomponent_get_first_property(edit, ICAL_RECURRENCEID_PROPERTY);
      const icaltimetype original =
          zoned(icalproperty_get_recurrenceid(recurrenceID), recurrenceID);
      const icaltimetype start = startOf(edit);
      if ((icaltime_is_null_time(original) != 0) || (icaltime_is_null_time(start) != 0)) {
        ++document_.skippedComponents;
        continue;
      }
      const double key = seconds(original);
      edited.insert(key);
      add(edit, idFor(uid, key), start, lengthOf(edit, start));
    }
    if (series.master == nullptr) return;
    const icaltimetype start = startOf(series.master);
    if (icaltime_is_null_time(start) != 0) {
      ++document_.skippedComponents;
      return;
    }
    const Length length = lengthOf(series.master, start);
    const bool recurs =
        (icalcomponent_get_first_property(series.master, ICAL_RRULE_PROPERTY) != nullptr) ||
        (icalcomponent_get_first_property(series.master, ICAL_RDATE_PROPERTY) != nullptr);
    if (!recurs) {
      add(series.master, idFor(uid), start, length);
      return;
    }
    for (const auto& [key, occurrence] : occurrences(series.master, start, length)) {
      if (!edited.contains(key))
        add(series.master, idFor(uid, key), occurrence.start, occurrence.length);
    }
  }

  struct Occurrence {
    icaltimetype start;
    Length length;
  };

  // An extra date given as a period lasts as long as its period, not as the event.
  Length lengthOfPeriod(const icalperiodtype& period, icaltimetype start, icalproperty* property,
                        const Length& eventLength) {
    if (icaltime_is_null_time(period.start) != 0) return eventLength;
    if (icaltime_is_null_time(period.end) == 0) {
      return {0, std::max(0.0, seconds(zoned(period.end, property)) - seconds(start))};
    }
    if (icaldurationtype_is_bad_duration(period.duration) == 0) {
      return {0, std::max(0.0, static_cast<double>(icaldurationtype_as_int(period.duration)))};
    }
    return eventLength;
  }

  // The occurrences of a recurring event that can overlap the window, by their starts' seconds:
  // its own start, which always counts, the rules' and the extra dates', less the excluded ones.
  std::map<double, Occurrence> occurrences(icalcomponent* event, icaltimetype start,
                                           const Length& length) {
    std::map<double, Occurrence> found;
    if (overlapsWindow(seconds(start), endOf(start, length)))
      found.emplace(seconds(start), Occurrence{start, length});
    // Anything starting before this cannot reach into the window; a day's slack for dates,
    // whose length in seconds depends on the clocks.
    const double earliest = options_.windowStart - length.seconds -
                            (86400.0 * (length.days + ((start.is_date != 0) ? 1 : 0)));
    for (icalproperty* p = icalcomponent_get_first_property(event, ICAL_RRULE_PROPERTY);
         p != nullptr; p = icalcomponent_get_next_property(event, ICAL_RRULE_PROPERTY)) {
      expandRule(icalproperty_get_rrule(p), start, length, earliest, found);
    }
    for (icalproperty* p = icalcomponent_get_first_property(event, ICAL_RDATE_PROPERTY);
         p != nullptr; p = icalcomponent_get_next_property(event, ICAL_RDATE_PROPERTY)) {
      const icaldatetimeperiodtype date = icalproperty_get_rdate(p);
      icaltimetype time = (icaltime_is_null_time(date.time) != 0) ? date.period.start : date.time;
      if (icaltime_is_null_time(time) != 0) continue;
      time = zoned(time, p);
      const Length ownLength = lengthOfPeriod(date.period, time, p, length);
      const double key = seconds(time);
      if (found.size() >= ICalendarReader::maxOccurrencesPerEvent) {
        document_.expansionCapped = true;
        break;
      }
      if (overlapsWindow(key, endOf(time, ownLength)))
        found.emplace(key, Occurrence{time, ownLength});
    }
    for (icalproperty* p = icalcomponent_get_first_property(event, ICAL_EXDATE_PROPERTY);
         p != nullptr; p = icalcomponent_get_next_property(event, ICAL_EXDATE_PROPERTY)) {
      const icaltimetype excluded = zoned(icalproperty_get_exdate(p), p);
      if (icaltime_is_null_time(excluded) == 0) found.erase(seconds(excluded));
    }
    return found;
  }

  // The moment `at` on the wall clock `start` is written in, labelled as `start` is: the rule's
  // iterator reads a start in the series' own zone, so a time labelled UTC would be shifted by
  // the zone's offset.
  icaltimetype wallClockLike(icaltimetype start, double at) const {
    icaltimetype time =
        icaltime_from_timet_with_zone(static_cast<time_t>(at), 0, icaltimezone_get_utc_timezone());
    time = icaltime_convert_to_zone(
        time, const_cast<icaltimezone*>((start.zone != nullptr) ? start.zone : local_));
    if (start.zone == nullptr) time.zone = nullptr;
    if (start.is_date != 0) {
      time.is_date = 1;
      time.hour = time.minute = time.second = 0;
    }
    return time;
  }

  void expandRule(const icalrecurrencetype& rule, icaltimetype start, const Length& length,
                  double earliest, std::map<double, Occurrence>& found) {
    if (rule.freq == ICAL_NO_RECURRENCE) return;
    const std::unique_ptr<icalrecur_iterator, IteratorFree> iterator(
        icalrecur_iterator_new(rule, start));
    if (!iterator) return;
    // A rule without a count can start near the window instead of at its first occurrence.
    if (rule.count == 0 && earliest > seconds(start)) {
      icalrecur_iterator_set_start(iterator.get(), wallClockLike(start, earliest));
    }
    for (std::size_t steps = 0;; ++steps) {
      if (steps == ICalendarReader::maxStepsPerRule ||
          stepsUsed_ == ICalendarReader::maxStepsPerDocument ||
          found.size() >= ICalendarReader::maxOccurrencesPerEvent) {
        document_.expansionCapped = true;
        return;
      }
      icaltimetype next = icalrecur_iterator_next(iterator.get());
      ++stepsUsed_;
      if (icaltime_is_null_time(next) != 0) return;
      if (next.zone == nullptr) next.zone = start.zone;
      const double key = seconds(next);
      if (key >= options_.windowEnd) return;
      if (!overlapsWindow(key, endOf(next, length))) continue;
      found.emplace(key, Occurrence{next, length});
    }
  }

  void readToDos() {
    std::size_t index = 0;
    for (icalcomponent* todo = icalcomponent_get_first_component(calendar_, ICAL_VTODO_COMPONENT);
         todo != nullptr;
         todo = icalcomponent_get_next_component(calendar_, ICAL_VTODO_COMPONENT)) {
      const std::string uid =
          propertyText(todo, ICAL_UID_PROPERTY).value_or("#todo" + std::to_string(index));
      ++index;
      const icalproperty_status status = icalcomponent_get_status(todo);
      if (status == ICAL_STATUS_CANCELLED) continue;
      if (icalcomponent_get_first_property(todo, ICAL_RECURRENCEID_PROPERTY) != nullptr) continue;
      ReminderItem item;
      item.id = idFor(uid);
      item.title = propertyText(todo, ICAL_SUMMARY_PROPERTY).value_or("");
      if (icalproperty* due = icalcomponent_get_first_property(todo, ICAL_DUE_PROPERTY)) {
        const icaltimetype time = zoned(icalproperty_get_due(due), due);
        if (icaltime_is_null_time(time) == 0) {
          item.due = seconds(time);
          item.dueIsDate = time.is_date != 0;
        }
      }
      icalproperty* percent = icalcomponent_get_first_property(todo, ICAL_PERCENTCOMPLETE_PROPERTY);
      item.isDone = status == ICAL_STATUS_COMPLETED ||
                    (icalcomponent_get_first_property(todo, ICAL_COMPLETED_PROPERTY) != nullptr) ||
                    ((percent != nullptr) && icalproperty_get_percentcomplete(percent) >= 100);
      item.calendarColor = document_.color ? document_.color : options_.color;
      document_.reminders.push_back(std::move(item));
    }
  }

  const ICalendarReadOptions& options_;
  ICalendarDocument& document_;
  icaltimezone* local_;
  std::set<std::string> owners_;
  icalcomponent* calendar_ = nullptr;
  std::map<std::string, icaltimezone*, std::less<>> zones_;  // of this calendar's TZIDs
  std::size_t stepsUsed_ = 0;
};

// The document without white space at its end, for the check of its first line.
std::string_view trimmedEnd(std::string_view text) {
  while (!text.empty() && (text.back() == '\r' || text.back() == '\n' || text.back() == ' ' ||
                           text.back() == '\t')) {
    text.remove_suffix(1);
  }
  return text;
}

std::optional<std::string_view> valueAfter(std::string_view line, std::string_view name) {
  if (line.size() < name.size() || !asciiEqualsIgnoringCase(line.substr(0, name.size()), name))
    return std::nullopt;
  return line.substr(name.size());
}

// How far the document's calendars reach: the end of the line that closes the last of them,
// which may be followed by lines that belong to none (a proxy's or a server's note), or why
// there is no such line. A document that stops with its components open was cut short; one
// whose last line closes a component that is not open is broken.
std::expected<std::size_t, ICalendarError> calendarsEnd(std::string_view text) {
  std::vector<std::string_view> open;
  std::optional<std::size_t> end;
  std::string_view lastLine;
  bool lastClosedNothing = false;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t newline = std::min(text.find('\n', at), text.size());
    const std::string_view line = trimmedEnd(text.substr(at, newline - at));
    const std::size_t next = std::min(newline + 1, text.size());
    if (line.empty()) {
      at = next;
      continue;
    }
    if (open.empty() && end) {
      // Only another calendar may follow a complete one; anything else is left unread.
      if (!valueAfter(line, "BEGIN:VCALENDAR")) break;
    }
    lastLine = line;
    lastClosedNothing = false;
    if (const auto begun = valueAfter(line, "BEGIN:")) {
      open.push_back(*begun);
    } else if (const auto ended = valueAfter(line, "END:")) {
      const auto match = std::ranges::find_if(open.rbegin(), open.rend(), [&](auto name) {
        return asciiEqualsIgnoringCase(name, *ended);
      });
      if (match == open.rend()) {
        lastClosedNothing = true;
      } else {
        open.erase(std::prev(match.base()), open.end());
        if (open.empty()) end = next;
      }
    }
    at = next;
  }
  if (open.empty() && end) return *end;
  if (lastClosedNothing) {
    // "END:VCALEND" is a line cut short; "END:VCALENDR" closes nothing anyone opened.
    const bool cut = std::ranges::any_of(open, [&](std::string_view name) {
      const std::string closing = "END:" + std::string(name);
      return lastLine.size() < closing.size() &&
             asciiEqualsIgnoringCase(lastLine,
                                     std::string_view(closing).substr(0, lastLine.size()));
    });
    if (!cut) return std::unexpected(ICalendarError::malformed);
  }
  return std::unexpected(ICalendarError::truncated);
}

}  // namespace

std::expected<ICalendarDocument, ICalendarError> ICalendarReader::read(
    std::string_view bytes, const ICalendarReadOptions& options) {
  if (bytes.size() > maxDocumentBytes) return std::unexpected(ICalendarError::tooLarge);
  const std::string utf8 = iCalendarUTF8(bytes);
  const std::string_view body = trimmedEnd(trimmedASCII(utf8));
  if (body.size() < 15 || !asciiEqualsIgnoringCase(body.substr(0, 15), "BEGIN:VCALENDAR")) {
    return std::unexpected(ICalendarError::notICalendar);
  }
  const std::expected<std::size_t, ICalendarError> end = calendarsEnd(utf8);
  if (!end) return std::unexpected(end.error());

  keepLibicalFromAborting();
  // The texts libical returns for properties and times live in a ring of up to 2,500 buffers of
  // the reading thread, which it frees only when the ring wraps: a read of a large calendar
  // would leave hundreds of kilobytes there for as long as the thread lives.
  const struct RingRelease {
    ~RingRelease() { icalmemory_free_ring(); }
  } ringRelease;
  const std::string calendars = utf8.substr(0, *end);
  const std::unique_ptr<icalcomponent, ComponentFree> root(
      icalparser_parse_string(calendars.c_str()));
  if (!root) return std::unexpected(ICalendarError::malformed);

  ICalendarDocument document;
  CalendarReader reader(options, document);
  if (icalcomponent_isa(root.get()) == ICAL_VCALENDAR_COMPONENT) {
    reader.read(root.get());
  } else {
    bool any = false;
    for (icalcomponent* calendar =
             icalcomponent_get_first_component(root.get(), ICAL_VCALENDAR_COMPONENT);
         calendar != nullptr;
         calendar = icalcomponent_get_next_component(root.get(), ICAL_VCALENDAR_COMPONENT)) {
      reader.read(calendar);
      any = true;
    }
    if (!any) return std::unexpected(ICalendarError::malformed);
  }
  return document;
}

}  // namespace tindra
