#include "calendar/link_start_filter.h"

#include <array>

#include "calendar/meeting_link_vocabulary.h"

namespace tindra {

namespace {

// Case-insensitive matching folds these into ASCII letters: the long s and the Kelvin sign into
// "s" and "k", the Latin ligatures into "ff", "fi", "st" and the like. Where one appears the
// filter gives up and lets the expression decide.
constexpr bool isFoldedIntoASCII(char16_t c) {
  return c == u'\u017F' || c == u'\u212A' || (c >= u'\uFB00' && c <= u'\uFB06');
}

constexpr bool isASCIIAlphanumeric(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

char16_t asciiLowered(char16_t c) {
  return (c >= u'A' && c <= u'Z') ? c - u'A' + u'a' : c;
}

// The look-behind refuses a start after a word character, dot, at sign, slash or hyphen; of the
// word characters beyond ASCII only the folding ones are tested here.
bool refusesStartAfter(char16_t c) {
  return isASCIIAlphanumeric(c) || c == u'_' || c == u'.' || c == u'@' || c == u'/' || c == u'-' ||
         isFoldedIntoASCII(c);
}

// Letters, digits, hyphens and dots: what a bare host address is made of.
constexpr std::array<bool, 128> asciiHostCharacters = [] {
  std::array<bool, 128> table{};
  for (char16_t c = 0; c < 128; ++c) table[c] = isASCIIAlphanumeric(c) || c == u'-' || c == u'.';
  return table;
}();

bool isHostCharacter(char16_t c) {
  return c < 128 ? asciiHostCharacters[c] : isFoldedIntoASCII(c);
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

bool LinkStartFilter::mightStartScheme(std::size_t start) const {
  // Every scheme begins with one of these; no folded character can stand for them.
  char16_t first = asciiLowered(text_[start]);
  if (first != u'h' && first != u'z' && first != u'm' && first != u'f') return false;
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
bool LinkStartFilter::mightStartHost(std::size_t start, std::size_t end) const {
  if (end == text_.size() || text_[end] != u'/') return false;
  for (std::size_t i = start; i < end; ++i) {
    if (isFoldedIntoASCII(text_[i])) return true;
  }
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

// Every match starts with a host character (the schemes begin with letters), and a host
// character right after another is refused by the look-behind, so only the first of each run of
// host characters needs a look.
std::int32_t LinkStartFilter::next(std::int32_t from) const {
  std::size_t at = static_cast<std::size_t>(from);
  while (at < text_.size()) {
    if (!isHostCharacter(text_[at])) {
      ++at;
      continue;
    }
    std::size_t runEnd = at + 1;
    while (runEnd < text_.size() && isHostCharacter(text_[runEnd])) ++runEnd;
    bool mayFollow = at == 0 || !refusesStartAfter(text_[at - 1]);
    if (mayFollow && (mightStartScheme(at) || mightStartHost(at, runEnd))) {
      return static_cast<std::int32_t>(at);
    }
    at = runEnd;
  }
  return static_cast<std::int32_t>(text_.size());
}

}  // namespace tindra
