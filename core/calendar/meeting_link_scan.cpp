#include "calendar/meeting_link_scan.h"

#include <unicode/regex.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "calendar/meeting_link_vocabulary.h"

namespace tindra {

namespace {

// ICU reads a backslash before any character but a letter or digit as that character.
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

[[noreturn]] void stopOnBadPattern(UErrorCode status) {
  std::fprintf(stderr, "meeting link pattern does not compile: %s\n", u_errorName(status));
  std::abort();
}

const icu::RegexPattern& compiledPattern() {
  // Built once and never freed: matchers on other threads may outlive static destruction.
  static const icu::RegexPattern* const compiled = [] {
    UErrorCode status = U_ZERO_ERROR;
    UParseError parseError;
    icu::RegexPattern* pattern = icu::RegexPattern::compile(
        icu::UnicodeString::fromUTF8(MeetingLinkScan::pattern()), 0, parseError, status);
    if (U_FAILURE(status)) stopOnBadPattern(status);
    return pattern;
  }();
  return *compiled;
}

icu::RegexMatcher& threadMatcher() {
  thread_local const std::unique_ptr<icu::RegexMatcher> matcher = [] {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::RegexMatcher> created(compiledPattern().matcher(status));
    if (U_FAILURE(status)) stopOnBadPattern(status);
    created->useTransparentBounds(true);  // the look-behind must see before the tried position
    return created;
  }();
  return *matcher;
}

const icu::UnicodeString& emptyText() {
  static const icu::UnicodeString* const text = new icu::UnicodeString();
  return *text;
}

}  // namespace

const std::string& MeetingLinkScan::pattern() {
  using namespace meeting_vocabulary;
  static const std::string text = "(?i)(?<![\\w.@/-])(?:(?:" + joinedEscaped(schemes) +
                                  "):(?://)?|(?=(?:[a-z0-9-]+\\.)*(?:" + joinedEscaped(hosts) +
                                  ")/))[^\\s<>\"'()\\[\\]{}|\\\\^`]+";
  return text;
}

MeetingLinkScan::MeetingLinkScan(const icu::UnicodeString& input)
    : matcher_(threadMatcher()),
      filter_(std::u16string_view(input.getBuffer(), static_cast<std::size_t>(input.length()))),
      length_(input.length()) {
  matcher_.reset(input);
}

// Keeps the thread's matcher from pointing at a text that is gone.
MeetingLinkScan::~MeetingLinkScan() {
  matcher_.reset(emptyText());
}

std::optional<MeetingLinkScan::Match> MeetingLinkScan::next() {
  UErrorCode status = U_ZERO_ERROR;
  while (from_ < length_) {
    std::int32_t at = filter_.next(from_);
    if (at >= length_) break;
    matcher_.region(at, length_, status);
    if (matcher_.lookingAt(status)) {
      std::int32_t end = matcher_.end(status);
      if (U_FAILURE(status)) break;
      from_ = end;
      return Match{at, end};
    }
    if (U_FAILURE(status)) break;
    from_ = at + 1;
  }
  from_ = length_;
  return std::nullopt;
}

}  // namespace tindra
