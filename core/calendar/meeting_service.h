// MeetingService: the video-call services whose links get a Join button. Stored by raw value,
// which is the case name; an unknown raw value reads as no service.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class MeetingService { zoom, googleMeet, microsoftTeams, webex, faceTime };

template <>
struct EnumTable<MeetingService> {
  static constexpr std::array cases{
      EnumCase{MeetingService::zoom, "zoom"}, EnumCase{MeetingService::googleMeet, "googleMeet"},
      EnumCase{MeetingService::microsoftTeams, "microsoftTeams"},
      EnumCase{MeetingService::webex, "webex"}, EnumCase{MeetingService::faceTime, "faceTime"}};
};

}  // namespace tindra
