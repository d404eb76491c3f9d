#include "base/line_break.h"

namespace tindra {

namespace {

// Length of the line break starting at `at`, or 0.
std::size_t lineBreakLength(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at);
  switch (rest.front()) {
    case '\n':
    case '\v':
    case '\f':
      return 1;
    case '\r':
      return rest.starts_with("\r\n") ? 2 : 1;
    default:
      break;
  }
  if (rest.starts_with("\xC2\x85")) return 2;
  if (rest.starts_with("\xE2\x80\xA8") || rest.starts_with("\xE2\x80\xA9")) return 3;
  return 0;
}

}  // namespace

std::optional<LineBreak> findLineBreak(std::string_view text, std::size_t from) {
  for (std::size_t at = from; at < text.size(); ++at) {
    if (const std::size_t length = lineBreakLength(text, at)) return LineBreak{at, length};
  }
  return std::nullopt;
}

}  // namespace tindra
