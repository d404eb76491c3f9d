#include "calendar/meeting_link_parser.h"

#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <climits>
#include <string>

#include "base/ascii_text.h"
#include "calendar/meeting_link_scan.h"
#include "calendar/meeting_link_vocabulary.h"

namespace tindra {

namespace {

using namespace meeting_vocabulary;

constexpr std::array<std::string_view, 6> zoomPathPrefixes{"/j/", "/my/",      "/w/",
                                                           "/s/", "/wc/join/", "/wc/"};
constexpr std::array<std::string_view, 4> webexPathParts{"/meet/", "/join/", "/j.php",
                                                         "/webappng/sites/"};

// Characters a sentence may end with right after an address.
constexpr std::u16string_view sentencePunctuation = u".,;:!?";

int32_t trimmedEnd(const icu::UnicodeString& text, int32_t start, int32_t end) {
  while (end > start + 1 &&
         sentencePunctuation.find(text.charAt(end - 1)) != std::u16string_view::npos) {
    --end;
  }
  return end;
}

bool startsWithScheme(std::string_view lowered) {
  for (std::string_view scheme : schemes) {
    if (lowered.size() > scheme.size() && lowered.starts_with(scheme) &&
        lowered[scheme.size()] == ':') {
      return true;
    }
  }
  return false;
}

// A match with a scheme parses as it stands; a bare host gets "https://" in front.
std::string urlText(std::string candidate) {
  if (startsWithScheme(asciiLowercased(candidate.substr(0, 16)))) return candidate;
  return "https://" + candidate;
}

icu::UnicodeString utf16(std::string_view text) {
  return icu::UnicodeString::fromUTF8(
      icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
}

// Calls `visit` with each link in `text` in reading order until it returns false.
template <typename Visit>
void forEachLink(std::string_view text, const Visit& visit) {
  if (text.size() > static_cast<std::size_t>(INT32_MAX)) return;
  const icu::UnicodeString input = utf16(text);
  MeetingLinkScan scan(input);
  std::string candidate;
  while (auto match = scan.next()) {
    candidate.clear();
    input.tempSubStringBetween(match->start, trimmedEnd(input, match->start, match->end))
        .toUTF8String(candidate);
    std::optional<MeetingLink> link = MeetingLink::fromURL(urlText(candidate));
    if (link && !visit(std::move(*link))) return;
  }
}

std::optional<MeetingLink> firstLink(std::string_view text) {
  std::optional<MeetingLink> first;
  forEachLink(text, [&](MeetingLink link) {
    first = std::move(link);
    return false;
  });
  return first;
}

bool isOrIsUnder(std::string_view host, std::string_view name) {
  return host == name || (host.size() > name.size() && host.ends_with(name) &&
                          host[host.size() - name.size() - 1] == '.');
}

template <std::size_t N>
bool startsWithAny(std::string_view text, const std::array<std::string_view, N>& prefixes) {
  for (std::string_view prefix : prefixes) {
    if (text.starts_with(prefix)) return true;
  }
  return false;
}

template <std::size_t N>
bool containsAny(std::string_view text, const std::array<std::string_view, N>& parts) {
  for (std::string_view part : parts) {
    if (text.find(part) != std::string_view::npos) return true;
  }
  return false;
}

bool isLetters(std::string_view text) {
  for (char c : text) {
    if (c < 'a' || c > 'z') return false;
  }
  return true;
}

// "/abc-defg-hij", optionally with a final slash.
bool isMeetCode(std::string_view path) {
  if (path.size() == 14 && path.back() == '/') path.remove_suffix(1);
  return path.size() == 13 && path[0] == '/' && path[4] == '-' && path[9] == '-' &&
         isLetters(path.substr(1, 3)) && isLetters(path.substr(5, 4)) &&
         isLetters(path.substr(10, 3));
}

std::optional<MeetingService> serviceIf(bool matches, MeetingService service) {
  return matches ? std::optional(service) : std::nullopt;
}

}  // namespace

std::optional<MeetingLink> MeetingLinkParser::link(std::optional<std::string_view> url,
                                                   std::optional<std::string_view> location,
                                                   std::optional<std::string_view> notes) {
  if (url) {
    if (auto fromField = MeetingLink::fromURL(*url)) return fromField;
  }
  for (const auto& text : {location, notes}) {
    if (!text) continue;
    if (auto found = firstLink(*text)) return found;
  }
  return std::nullopt;
}

std::vector<MeetingLink> MeetingLinkParser::links(std::string_view text) {
  std::vector<MeetingLink> found;
  forEachLink(text, [&](MeetingLink link) {
    if (std::find(found.begin(), found.end(), link) == found.end())
      found.push_back(std::move(link));
    return true;
  });
  return found;
}

std::optional<MeetingService> MeetingLinkParser::service(std::string_view host,
                                                         std::string_view path) {
  const std::string h = asciiLowercased(host);
  const std::string p = asciiLowercased(path);
  if (isOrIsUnder(h, zoomHost) || isOrIsUnder(h, zoomGovernmentHost)) {
    return serviceIf(startsWithAny(p, zoomPathPrefixes), MeetingService::zoom);
  }
  if (h == googleMeetHost) {
    return serviceIf(isMeetCode(p) || p.starts_with("/lookup/"), MeetingService::googleMeet);
  }
  if (h == teamsBusinessHost) {
    return serviceIf(p.starts_with("/l/meetup-join/") || p.starts_with("/meet/"),
                     MeetingService::microsoftTeams);
  }
  if (h == teamsConsumerHost) {
    return serviceIf(p.starts_with("/meet/"), MeetingService::microsoftTeams);
  }
  if (isOrIsUnder(h, webexHost)) {
    return serviceIf(containsAny(p, webexPathParts), MeetingService::webex);
  }
  if (h == faceTimeHost) return serviceIf(p.starts_with("/join"), MeetingService::faceTime);
  return std::nullopt;
}

std::vector<std::string> MeetingLinkParser::matches(std::string_view text) {
  std::vector<std::string> found;
  if (text.size() > static_cast<std::size_t>(INT32_MAX)) return found;
  const icu::UnicodeString input = utf16(text);
  MeetingLinkScan scan(input);
  while (auto match = scan.next()) {
    input.tempSubStringBetween(match->start, match->end).toUTF8String(found.emplace_back());
  }
  return found;
}

std::optional<MeetingService> MeetingLinkParser::applicationSchemeService(std::string_view scheme) {
  for (const ApplicationScheme& known : applicationSchemes) {
    if (known.name == scheme) return known.service;
  }
  return std::nullopt;
}

}  // namespace tindra
