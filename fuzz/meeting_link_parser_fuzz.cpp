// Feeds arbitrary text to the meeting-link search. The filtered scan must give exactly the
// matches of a plain ICU find() loop, every link found must classify again to itself, and the
// departure check that runs the same search must not fall over.
#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/departure_advisor.h"
#include "calendar/meeting_link_parser.h"
#include "calendar/meeting_link_scan.h"

namespace {

std::vector<std::string> plainMatches(std::string_view text) {
  static std::unique_ptr<icu::RegexPattern> pattern = [] {
    UErrorCode status = U_ZERO_ERROR;
    UParseError parseError;
    return std::unique_ptr<icu::RegexPattern>(icu::RegexPattern::compile(
        icu::UnicodeString::fromUTF8(tindra::MeetingLinkScan::pattern()), 0, parseError, status));
  }();
  UErrorCode status = U_ZERO_ERROR;
  icu::UnicodeString input = icu::UnicodeString::fromUTF8(
      icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
  std::unique_ptr<icu::RegexMatcher> matcher(pattern->matcher(input, status));
  std::vector<std::string> found;
  while (matcher->find(status)) matcher->group(status).toUTF8String(found.emplace_back());
  return found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  if (tindra::MeetingLinkParser::matches(text) != plainMatches(text)) std::abort();
  auto all = tindra::MeetingLinkParser::links(text);
  for (const tindra::MeetingLink& link : all) {
    if (tindra::MeetingLink::fromURL(link.url) != link) std::abort();
  }
  auto first = tindra::MeetingLinkParser::link(std::nullopt, text, std::nullopt);
  if (first.has_value() != !all.empty() || (first && *first != all.front())) std::abort();
  if (size < 4096) (void)tindra::DepartureAdvisor::destination(text);
  return 0;
}
