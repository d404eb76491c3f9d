// MeetingLinkScan: runs the meeting-link regular expression over one text and hands out its
// matches in reading order, the same ones a plain find() loop gives. The expression is compiled
// once and shared; each thread reuses its own matcher, so a scan allocates little beyond its
// input. Only positions a cheap pre-filter lets through are tried: trying every position costs
// about fifty times as much on a 5 KB invitation, most of it in the bare-host look-ahead.
#pragma once

#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <optional>
#include <string>

#include "calendar/link_start_filter.h"

namespace tindra {

class MeetingLinkScan {
 public:
  // A match as UTF-16 offsets into the input.
  struct Match {
    std::int32_t start;
    std::int32_t end;
  };

  // The expression: a start where no word character, dot, at sign, slash or hyphen stands
  // before, then a known scheme and colon, or a bare known host followed by a slash; it runs to
  // white space or a character that cannot stand in an address.
  static const std::string& pattern();

  // `input` must outlive the scan. One scan at a time per thread.
  explicit MeetingLinkScan(const icu::UnicodeString& input);
  ~MeetingLinkScan();
  MeetingLinkScan(const MeetingLinkScan&) = delete;
  MeetingLinkScan& operator=(const MeetingLinkScan&) = delete;
  MeetingLinkScan(MeetingLinkScan&&) = delete;
  MeetingLinkScan& operator=(MeetingLinkScan&&) = delete;

  // The next match, or none at the end of the text (or should ICU fail).
  std::optional<Match> next();

 private:
  icu::RegexMatcher& matcher_;
  LinkStartFilter filter_;
  std::int32_t length_;
  std::int32_t from_ = 0;
};

}  // namespace tindra
