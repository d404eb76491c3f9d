#include "calendar/upcoming_event_sound_log.h"

#include <cmath>

#include "base/json_reader.h"
#include "base/json_writer.h"
#include "calendar/upcoming_event_policy.h"

namespace tindra {

bool UpcomingEventSoundLog::recordDue(std::span<const CalendarEventInfo> events, double now,
                                      double leadTime) {
  std::erase_if(played, [&](const auto& entry) { return !(entry.second > now); });
  std::vector<const CalendarEventInfo*> due;
  for (const CalendarEventInfo& event : events) {
    if (UpcomingEventPolicy::isInLeadPeriod(event, now, leadTime) && !played.contains(event.id)) {
      due.push_back(&event);
    }
  }
  for (const CalendarEventInfo* event : due) played[event->id] = event->start;
  return !due.empty();
}

JSONValue::Object UpcomingEventSoundLog::toJSON() const {
  JSONValue::Object object;
  for (const auto& [id, start] : played) object.emplace(id, start);
  return object;
}

UpcomingEventSoundLog UpcomingEventSoundLog::fromJSON(const JSONValue& value) {
  UpcomingEventSoundLog log;
  const JSONValue::Object* object = value.asObject();
  if (object == nullptr) return log;
  for (const auto& [id, member] : *object) {
    const double* start = member.asNumber();
    if (start != nullptr && std::isfinite(*start)) log.played.emplace(id, *start);
  }
  return log;
}

std::string UpcomingEventSoundLog::encoded() const {
  return JSONWriter::write(toJSON());
}

UpcomingEventSoundLog UpcomingEventSoundLog::decoded(std::string_view text) {
  auto value = JSONReader::parse(text);
  if (!value) return {};
  return fromJSON(*value);
}

}  // namespace tindra
