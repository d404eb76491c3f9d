#include "calendar/meeting_link_parser.h"

#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "calendar/ascii_case.h"

namespace tindra {

namespace {

constexpr std::string_view zoomHost = "zoom.us";
constexpr std::string_view zoomGovernmentHost = "zoomgov.com";
constexpr std::string_view googleMeetHost = "meet.google.com";
constexpr std::string_view teamsBusinessHost = "teams.microsoft.com";
constexpr std::string_view teamsConsumerHost = "teams.live.com";
constexpr std::string_view webexHost = "webex.com";
constexpr std::string_view faceTimeHost = "facetime.apple.com";

constexpr std::array<std::string_view, 7> meetingHosts{
    zoomHost,          zoomGovernmentHost, googleMeetHost, teamsBusinessHost,
    teamsConsumerHost, webexHost,          faceTimeHost};

// The web schemes come first in the expression: the look-behind refuses a host right after
// "//", so without them an https address on a sub-domain would never be found.
constexpr std::array<std::string_view, 2> webSchemes{"https", "http"};

// Schemes whose addresses are meeting links whatever follows the colon.
struct ApplicationScheme {
  std::string_view name;
  MeetingService service;
};
constexpr std::array<ApplicationScheme, 5> applicationSchemes{{
    {"zoommtg", MeetingService::zoom},
    {"zoomus", MeetingService::zoom},
    {"msteams", MeetingService::microsoftTeams},
    {"facetime", MeetingService::faceTime},
    {"facetime-audio", MeetingService::faceTime},
}};

std::vector<std::string_view> linkSchemes() {
  std::vector<std::string_view> schemes(webSchemes.begin(), webSchemes.end());
  for (const ApplicationScheme& scheme : applicationSchemes) schemes.push_back(scheme.name);
  return schemes;
}

constexpr std::array<std::string_view, 6> zoomPathPrefixes{"/j/", "/my/",      "/w/",
                                                           "/s/", "/wc/join/", "/wc/"};
constexpr std::array<std::string_view, 4> webexPathParts{"/meet/", "/join/", "/j.php",
                                                         "/webappng/sites/"};

// Characters a sentence may end with right after an address.
constexpr std::u16string_view sentencePunctuation = u".,;:!?";

std::string escapedForPattern(std::string_view literal) {
  std::string escaped;
  for (char c : literal) {
    bool isAlphanumeric =
        (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    if (!isAlphanumeric) escaped += '\\';
    escaped += c;
  }
  return escaped;
}

template <typename Literals>
std::string joinedEscaped(const Literals& literals) {
  std::string joined;
  for (std::string_view literal : literals) {
    if (!joined.empty()) joined += '|';
    joined += escapedForPattern(literal);
  }
  return joined;
}

// A match starts where no word character, dot, at sign, slash or hyphen stands before it, with a
// scheme and colon or with a bare known host followed by a slash, and runs to white space or a
// character that cannot stand in an address.
std::string linkPatternText() {
  return "(?i)(?<![\\w.@/-])(?:(?:" + joinedEscaped(linkSchemes()) +
         "):(?://)?|(?=(?:[a-z0-9-]+\\.)*(?:" + joinedEscaped(meetingHosts) +
         ")/))[^\\s<>\"'()\\[\\]{}|\\\\^`]+";
}

[[noreturn]] void stopOnBadPattern(UErrorCode status) {
  std::fprintf(stderr, "meeting link pattern does not compile: %s\n", u_errorName(status));
  std::abort();
}

const icu::RegexPattern& linkPattern() {
  // Built once and never freed: matchers on other threads may outlive static destruction.
  static const icu::RegexPattern* const pattern = [] {
    std::string text = linkPatternText();
    UErrorCode status = U_ZERO_ERROR;
    UParseError parseError;
    icu::RegexPattern* compiled =
        icu::RegexPattern::compile(icu::UnicodeString::fromUTF8(text), 0, parseError, status);
    if (U_FAILURE(status)) stopOnBadPattern(status);
    return compiled;
  }();
  return *pattern;
}

// One matcher per thread, reset for each text, so a scan allocates nothing but the input.
icu::RegexMatcher& linkMatcher() {
  thread_local const std::unique_ptr<icu::RegexMatcher> matcher = [] {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::RegexMatcher> created(linkPattern().matcher(status));
    if (U_FAILURE(status)) stopOnBadPattern(status);
    return created;
  }();
  return *matcher;
}

// Keeps the thread's matcher from pointing at a text that is gone.
class MatcherInput {
 public:
  MatcherInput(icu::RegexMatcher& matcher, const icu::UnicodeString& input) : matcher_(matcher) {
    matcher_.reset(input);
  }
  ~MatcherInput() { matcher_.reset(empty()); }
  MatcherInput(const MatcherInput&) = delete;
  MatcherInput& operator=(const MatcherInput&) = delete;

 private:
  static const icu::UnicodeString& empty() {
    static const icu::UnicodeString* const text = new icu::UnicodeString();
    return *text;
  }
  icu::RegexMatcher& matcher_;
};

int32_t trimmedEnd(const icu::UnicodeString& text, int32_t start, int32_t end) {
  while (end > start + 1 &&
         sentencePunctuation.find(text.charAt(end - 1)) != std::u16string_view::npos) {
    --end;
  }
  return end;
}

bool startsWithScheme(std::string_view lowered) {
  static const std::vector<std::string_view> schemes = linkSchemes();
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

// Calls `visit` with each link in `text` in reading order until it returns false.
template <typename Visit>
void forEachLink(std::string_view text, Visit&& visit) {
  if (text.size() > static_cast<std::size_t>(INT32_MAX)) return;
  const icu::UnicodeString input = icu::UnicodeString::fromUTF8(
      icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
  icu::RegexMatcher& matcher = linkMatcher();
  MatcherInput scope(matcher, input);
  UErrorCode status = U_ZERO_ERROR;
  std::string candidate;
  while (matcher.find(status) && U_SUCCESS(status)) {
    int32_t start = matcher.start(status);
    int32_t end = trimmedEnd(input, start, matcher.end(status));
    if (U_FAILURE(status)) return;
    candidate.clear();
    input.tempSubStringBetween(start, end).toUTF8String(candidate);
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

std::optional<MeetingService> MeetingLinkParser::applicationSchemeService(std::string_view scheme) {
  for (const ApplicationScheme& known : applicationSchemes) {
    if (known.name == scheme) return known.service;
  }
  return std::nullopt;
}

}  // namespace tindra
