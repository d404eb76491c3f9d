#include "calendar/departure_advisor.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>

#include "calendar/meeting_link_parser.h"
#include "calendar/whole_minutes.h"

namespace tindra {

namespace {

// Location texts that name no place, lower-cased.
constexpr std::array<std::string_view, 16> nonPlaceWords{
    "online",        "virtual",         "remote",
    "zoom",          "zoom meeting",    "google meet",
    "meet",          "microsoft teams", "microsoft teams meeting",
    "teams",         "teams meeting",   "webex",
    "webex meeting", "facetime",        "phone",
    "call"};

// Cheap sign of an address, tested before the full link search.
constexpr std::string_view meetingMarker = "://";

constexpr std::size_t shortestDestination = 3;

std::string_view trimmedWhiteSpace(std::string_view text) {
  const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
  auto length = static_cast<int32_t>(text.size());
  int32_t start = 0;
  while (start < length) {
    int32_t next = start;
    UChar32 c = 0;
    U8_NEXT(bytes, next, length, c);
    if (c < 0 || !u_isUWhiteSpace(c)) break;
    start = next;
  }
  int32_t end = length;
  while (end > start) {
    int32_t previous = end;
    UChar32 c = 0;
    U8_PREV(bytes, start, previous, c);
    if (c < 0 || !u_isUWhiteSpace(c)) break;
    end = previous;
  }
  return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
}

// Counts user-perceived characters, stopping at `limit`.
std::size_t characterCount(const icu::UnicodeString& text, std::size_t limit) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::BreakIterator> characters(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) return static_cast<std::size_t>(text.countChar32());
  characters->setText(text);
  std::size_t count = 0;
  characters->first();
  while (count < limit && characters->next() != icu::BreakIterator::DONE) ++count;
  return count;
}

bool isNonPlaceWord(std::string_view lowered) {
  for (std::string_view word : nonPlaceWords) {
    if (word == lowered) return true;
  }
  return false;
}

}  // namespace

bool DepartureAdvisor::needsTravelTime(const CalendarEventInfo& event, double now) {
  if (!event.isEligible()) return false;
  if (!(event.start > now && event.start - now <= travelLookAhead)) return false;
  return event.coordinate.has_value() || destination(event.location).has_value();
}

std::optional<std::string> DepartureAdvisor::destination(std::optional<std::string_view> location) {
  if (!location || location->size() > static_cast<std::size_t>(INT32_MAX)) return std::nullopt;
  std::string_view trimmed = trimmedWhiteSpace(*location);
  icu::UnicodeString text = icu::UnicodeString::fromUTF8(
      icu::StringPiece(trimmed.data(), static_cast<int32_t>(trimmed.size())));
  if (characterCount(text, shortestDestination) < shortestDestination) return std::nullopt;
  std::string lowered;
  text.toLower(icu::Locale::getRoot()).toUTF8String(lowered);
  if (lowered.find(meetingMarker) != std::string::npos) return std::nullopt;
  if (!MeetingLinkParser::links(lowered).empty()) return std::nullopt;
  if (isNonPlaceWord(lowered)) return std::nullopt;
  return std::string(trimmed);
}

std::optional<DeparturePlan> DepartureAdvisor::plan(double eventStart, double travelTime,
                                                    std::int64_t bufferMinutes) {
  constexpr double oneDay = 86400;
  if (!std::isfinite(travelTime) || travelTime < 0 || travelTime >= oneDay) return std::nullopt;
  if (bufferMinutes < 0) bufferMinutes = 0;
  if (bufferMinutes > std::numeric_limits<std::int64_t>::max() / 60) {
    std::fprintf(stderr, "travel buffer of %lld minutes overflows\n",
                 static_cast<long long>(bufferMinutes));
    std::abort();
  }
  double buffer = static_cast<double>(bufferMinutes * 60);
  return DeparturePlan{eventStart - travelTime - buffer, travelTime};
}

DepartureAdvice DepartureAdvisor::advice(const DeparturePlan& plan, double now) {
  double untilLeaving = plan.leaveAt - now;
  if (untilLeaving >= 60)
    return DepartureAdvice::leaveIn(wholeMinutes(std::floor(untilLeaving / 60)));
  if (untilLeaving > -60) return DepartureAdvice::leaveNow();
  return DepartureAdvice::late(wholeMinutes(std::floor(untilLeaving / -60)));
}

}  // namespace tindra
