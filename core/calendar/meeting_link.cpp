#include "calendar/meeting_link.h"

#include <uriparser/Uri.h>

#include "base/ascii_text.h"
#include "calendar/meeting_link_parser.h"

namespace tindra {

namespace {

// The parts of a web URL that decide whether it is a meeting, as views into the text.
struct WebParts {
  std::string_view host;
  std::string_view path;  // still percent-encoded
  bool hasUserInfo = false;
  bool hasPort = false;
};

std::string_view view(const UriTextRangeA& range) {
  if (range.first == nullptr) return {};
  return {range.first, static_cast<std::size_t>(range.afterLast - range.first)};
}

// The path runs from the end of the authority to the query or fragment.
std::string_view pathOf(std::string_view url) {
  std::size_t authority = url.find("//");
  if (authority == std::string_view::npos) return {};
  std::size_t start = url.find_first_of("/?#", authority + 2);
  if (start == std::string_view::npos || url[start] != '/') return {};
  std::size_t end = url.find_first_of("?#", start);
  return url.substr(start, end == std::string_view::npos ? url.size() - start : end - start);
}

// Parses `url` and returns its scheme and, for web URLs, the parts the host rules need.
struct ParsedURL {
  std::string scheme;  // lower-cased
  std::optional<WebParts> web;
};

std::optional<ParsedURL> parse(std::string_view url) {
  UriUriA uri;
  const char* errorPos = nullptr;
  if (uriParseSingleUriExA(&uri, url.data(), url.data() + url.size(), &errorPos) != URI_SUCCESS) {
    return std::nullopt;
  }
  ParsedURL parsed{asciiLowercased(view(uri.scheme)), std::nullopt};
  if (uri.hostText.first != nullptr) {
    parsed.web = WebParts{view(uri.hostText), pathOf(url), uri.userInfo.first != nullptr,
                          uri.portText.first != nullptr};
  }
  uriFreeUriMembersA(&uri);
  return parsed;
}

std::string percentDecoded(std::string_view text) {
  std::string decoded(text);
  const char* end = uriUnescapeInPlaceExA(decoded.data(), URI_FALSE, URI_BR_DONT_TOUCH);
  decoded.resize(static_cast<std::size_t>(end - decoded.data()));
  return decoded;
}

}  // namespace

std::optional<MeetingLink> MeetingLink::fromURL(std::string_view url) {
  std::optional<ParsedURL> parsed = parse(url);
  if (!parsed || parsed->scheme.empty()) return std::nullopt;
  if (auto service = MeetingLinkParser::applicationSchemeService(parsed->scheme)) {
    return MeetingLink{*service, std::string(url)};
  }
  if (parsed->scheme != "https" && parsed->scheme != "http") return std::nullopt;
  const std::optional<WebParts>& web = parsed->web;
  if (!web || web->host.empty() || web->hasUserInfo || web->hasPort) return std::nullopt;
  auto service = MeetingLinkParser::service(asciiLowercased(web->host), percentDecoded(web->path));
  if (!service) return std::nullopt;
  // Only the scheme changes; the rest keeps its text as found.
  return MeetingLink{*service, "https" + std::string(url.substr(parsed->scheme.size()))};
}

}  // namespace tindra
