// MeetingLinkParser: finds the one meeting link a calendar event's Join button opens, in the
// event's URL field, its location or its notes. Pure text and URL logic; safe from any thread
// (the compiled expression is shared and immutable, each thread keeps its own matcher).
//
// A found link's trailing sentence punctuation (. , ; : ! ?) is trimmed before parsing:
// invitations often end a sentence with the address, no meeting address ends in one of those
// characters, and keeping it would hand the meeting service a wrong meeting number or password.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/meeting_link.h"
#include "calendar/meeting_service.h"

namespace tindra {

class MeetingLinkParser {
 public:
  // The URL field if it is a meeting link, else the first link in the location, else the first
  // in the notes. Absent fields are skipped.
  static std::optional<MeetingLink> link(std::optional<std::string_view> url,
                                         std::optional<std::string_view> location,
                                         std::optional<std::string_view> notes);

  // Every meeting link in `text`, in reading order, later copies of the same URL dropped.
  static std::vector<MeetingLink> links(std::string_view text);

  // The service of a web address from its host and its (decoded) path; letter case is ignored.
  static std::optional<MeetingService> service(std::string_view host, std::string_view path);

  // The raw text of each match of the link-finding expression in `text`, in reading order,
  // before trimming and classification; for diagnostics.
  static std::vector<std::string> matches(std::string_view text);

  // The service an application scheme (lower case) stands for, or none for any other scheme.
  static std::optional<MeetingService> applicationSchemeService(std::string_view scheme);
};

}  // namespace tindra
