#include "calendar/link_start_filter.h"

#include "calendar/meeting_link_vocabulary.h"

namespace tindra {

namespace {

// Case-insensitive matching folds these into ASCII letters: the long s and the Kelvin sign into
// "s" and "k", the Latin ligatures into "ff", "fi", "st" and the like. Where one appears the
// filter gives up and lets the expression decide.
bool isFoldedIntoASCII(char16_t c) {
  return c == u'\u017F' || c == u'\u212A' || (c >= u'\uFB00' && c <= u'\uFB06');
}

bool isASCIIAlphanumeric(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

char16_t asciiLowered(char16_t c) {
  return (c >= u'A' && c <= u'Z') ? c - u'A' + u'a' : c;
}

// The look-behind refuses a start after a word character, dot, at sign, slash or hyphen; only
// the ASCII ones are tested here.
bool refusesStartAfter(char16_t c) {
  return isASCIIAlphanumeric(c) || c == u'_' || c == u'.' || c == u'@' || c == u'/' || c == u'-';
}

bool isHostCharacter(char16_t c) {
  return isASCIIAlphanumeric(c) || c == u'-' || c == u'.' || isFoldedIntoASCII(c);
}

enum class Comparison { equal, different, undecided };

// `literal` against the text at `at`, ignoring ASCII case.
Comparison compare(std::u16string_view text, std::size_t at, std::string_view literal) {
  if (text.size() - at < literal.size()) return Comparison::different;
  for (std::size_t i = 0; i < literal.size(); ++i) {
    char16_t c = text[at + i];
    if (isFoldedIntoASCII(c)) return Comparison::undecided;
    if (asciiLowered(c) != static_cast<char16_t>(literal[i])) return Comparison::different;
  }
  return Comparison::equal;
}

}  // namespace

bool LinkStartFilter::mightStartScheme(std::int32_t at) const {
  const auto start = static_cast<std::size_t>(at);
  for (std::string_view scheme : meeting_vocabulary::schemes) {
    switch (compare(text_, start, scheme)) {
      case Comparison::undecided:
        return true;
      case Comparison::equal:
        if (start + scheme.size() < text_.size() && text_[start + scheme.size()] == u':') {
          return true;
        }
        break;
      case Comparison::different:
        break;
    }
  }
  return false;
}

// A bare host match runs through host characters only and ends in a known host and a slash, so
// the run of host characters from `at` must end that way.
bool LinkStartFilter::mightStartHost(std::int32_t at) const {
  const auto start = static_cast<std::size_t>(at);
  std::size_t end = start;
  bool folds = false;
  while (end < text_.size() && isHostCharacter(text_[end])) {
    folds = folds || isFoldedIntoASCII(text_[end]);
    ++end;
  }
  if (end == start || end == text_.size() || text_[end] != u'/') return false;
  if (folds) return true;
  for (std::string_view host : meeting_vocabulary::hosts) {
    if (end - start < host.size()) continue;
    std::size_t hostStart = end - host.size();
    if (compare(text_, hostStart, host) == Comparison::equal &&
        (hostStart == start || text_[hostStart - 1] == u'.')) {
      return true;
    }
  }
  return false;
}

std::int32_t LinkStartFilter::next(std::int32_t from) const {
  const auto length = static_cast<std::int32_t>(text_.size());
  for (std::int32_t at = from; at < length; ++at) {
    if (at > 0 && refusesStartAfter(text_[static_cast<std::size_t>(at - 1)])) continue;
    if (mightStartScheme(at) || mightStartHost(at)) return at;
  }
  return length;
}

}  // namespace tindra
