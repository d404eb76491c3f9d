#include "calendar/meeting_service.h"

namespace tindra {

namespace {
constexpr std::array<std::string_view, allMeetingServices.size()> rawValues{
    "zoom", "googleMeet", "microsoftTeams", "webex", "faceTime"};
}

std::string_view rawValue(MeetingService service) {
  return rawValues[static_cast<std::size_t>(service)];
}

std::optional<MeetingService> meetingServiceFromRaw(std::string_view raw) {
  for (MeetingService service : allMeetingServices) {
    if (rawValue(service) == raw) return service;
  }
  return std::nullopt;
}

}  // namespace tindra
