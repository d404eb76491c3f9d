// UpcomingEventSoundLog: remembers which events already had their alert sound, so each event
// sounds once per lead period even across launches. Kept under the setting calendarEventSoundLog
// as a JSON object from event id to the event's start (seconds since 1970).
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "base/json_value.h"
#include "calendar/calendar_event_info.h"

namespace tindra {

struct UpcomingEventSoundLog {
  std::map<std::string, double, std::less<>> played;  // event id to its start when it sounded

  // Forgets events whose start has passed, then records every eligible event in its lead period
  // that is not in the log yet. True means: play the sound now, once for all of them. The
  // caller saves the log when it changed.
  bool recordDue(std::span<const CalendarEventInfo> events, double now, double leadTime);

  // The stored form: an object from id to start.
  JSONValue::Object toJSON() const;
  // Members that are not finite numbers are dropped; anything but an object gives an empty log.
  static UpcomingEventSoundLog fromJSON(const JSONValue& value);

  std::string encoded() const;
  // Unreadable text gives an empty log: at worst one sound plays again.
  static UpcomingEventSoundLog decoded(std::string_view text);

  friend bool operator==(const UpcomingEventSoundLog&, const UpcomingEventSoundLog&) = default;
};

}  // namespace tindra
