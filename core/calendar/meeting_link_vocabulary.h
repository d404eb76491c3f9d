// The schemes and public meeting hosts the meeting-link search knows, shared by the expression,
// its pre-filter and the host rules.
#pragma once

#include <array>
#include <string_view>

#include "calendar/meeting_service.h"

namespace tindra::meeting_vocabulary {

inline constexpr std::string_view zoomHost = "zoom.us";
inline constexpr std::string_view zoomGovernmentHost = "zoomgov.com";
inline constexpr std::string_view googleMeetHost = "meet.google.com";
inline constexpr std::string_view teamsBusinessHost = "teams.microsoft.com";
inline constexpr std::string_view teamsConsumerHost = "teams.live.com";
inline constexpr std::string_view webexHost = "webex.com";
inline constexpr std::string_view faceTimeHost = "facetime.apple.com";

inline constexpr std::array<std::string_view, 7> hosts{
    zoomHost,          zoomGovernmentHost, googleMeetHost, teamsBusinessHost,
    teamsConsumerHost, webexHost,          faceTimeHost};

// Web schemes come before the application schemes in the expression: the look-behind refuses a
// host right after "//", so without them an https address on a sub-domain is never found.
inline constexpr std::array<std::string_view, 7> schemes{
    "https", "http", "zoommtg", "zoomus", "msteams", "facetime", "facetime-audio"};

// Schemes whose addresses are meeting links whatever follows the colon.
struct ApplicationScheme {
  std::string_view name;
  MeetingService service;
};
inline constexpr std::array<ApplicationScheme, 5> applicationSchemes{{
    {"zoommtg", MeetingService::zoom},
    {"zoomus", MeetingService::zoom},
    {"msteams", MeetingService::microsoftTeams},
    {"facetime", MeetingService::faceTime},
    {"facetime-audio", MeetingService::faceTime},
}};

}  // namespace tindra::meeting_vocabulary
