// MeetingLink: the address a Join button opens and the service it belongs to. Web links are
// always https; application addresses (zoommtg:, msteams:, facetime: ...) are kept as found.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "calendar/meeting_service.h"

namespace tindra {

struct MeetingLink {
  MeetingService service;
  std::string url;

  // Classifies one URL: an application address gives its service directly; a web address needs
  // a known meeting host and path, no user name, password or port, and is upgraded to https.
  static std::optional<MeetingLink> fromURL(std::string_view url);

  friend bool operator==(const MeetingLink&, const MeetingLink&) = default;
};

}  // namespace tindra
