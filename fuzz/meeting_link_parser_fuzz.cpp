// Feeds arbitrary text to the meeting-link search. Every link found must classify again to
// itself, and the departure check that runs the same search must not fall over.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "calendar/departure_advisor.h"
#include "calendar/meeting_link_parser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const tindra::MeetingLink& link : tindra::MeetingLinkParser::links(text)) {
    if (tindra::MeetingLink::fromURL(link.url) != link) std::abort();
  }
  auto first = tindra::MeetingLinkParser::link(std::nullopt, text, std::nullopt);
  auto all = tindra::MeetingLinkParser::links(text);
  if (first.has_value() != !all.empty() || (first && *first != all.front())) std::abort();
  if (size < 4096) (void)tindra::DepartureAdvisor::destination(text);
  return 0;
}
