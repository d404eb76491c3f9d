#include "activity/activity_kind.h"

namespace tindra {

std::string_view name(ActivityKind kind) {
  static constexpr std::array<std::string_view, 10> names{
      "idle",    "nowPlaying", "upcomingEvent", "focus", "airDrop",
      "message", "accessory",  "batteryAlert",  "hud",   "incomingCall"};
  return names[static_cast<std::size_t>(rawValue(kind))];
}

}  // namespace tindra
