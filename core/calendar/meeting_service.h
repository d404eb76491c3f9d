// MeetingService: the video-call services whose links get a Join button. Stored by raw value,
// which is the case name; an unknown raw value reads as no service.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class MeetingService { zoom, googleMeet, microsoftTeams, webex, faceTime };

inline constexpr std::array<MeetingService, 5> allMeetingServices{
    MeetingService::zoom, MeetingService::googleMeet, MeetingService::microsoftTeams,
    MeetingService::webex, MeetingService::faceTime};

std::string_view rawValue(MeetingService service);
std::optional<MeetingService> meetingServiceFromRaw(std::string_view raw);

}  // namespace tindra
