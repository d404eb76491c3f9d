#include "activity/game_list_parser.h"

#include <unordered_set>

#include "base/text_case.h"

namespace tindra {
namespace {

bool isIdentifierCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '_';
}

bool isUnicodeWhiteSpace(char32_t c) {
  // Separators, line and paragraph breaks beyond ASCII (Unicode's Zs, Zl, Zp and NEL).
  return c == 0x85 || c == 0xA0 || c == 0x1680 || (c >= 0x2000 && c <= 0x200A) || c == 0x2028 ||
         c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}

// The length in bytes of the separator starting at `at`, or 0 when there is none.
std::size_t separatorLength(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(at);
  if (lead < 0x80) {
    return lead == ' ' || (lead >= '\t' && lead <= '\r') || lead == ',' || lead == ';' ? 1 : 0;
  }
  // Every non-ASCII white space is a two- or three-byte sequence; anything malformed is left to
  // the piece, which it makes invalid.
  const bool twoBytes = lead >= 0xC0 && lead < 0xE0;
  const bool threeBytes = lead >= 0xE0 && lead < 0xF0;
  if (!twoBytes && !threeBytes) return 0;
  const std::size_t length = twoBytes ? 2 : 3;
  if (at + length > text.size()) return 0;
  char32_t code = lead & (twoBytes ? 0x1F : 0x0F);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(at + i) & 0xC0) != 0x80) return 0;
    code = (code << 6) | (byte(at + i) & 0x3F);
  }
  return isUnicodeWhiteSpace(code) ? length : 0;
}

}  // namespace

bool GameListParser::isValidBundleIdentifier(std::string_view piece) {
  if (piece.size() > maxIdentifierLength) return false;
  std::size_t parts = 1;
  std::size_t partLength = 0;
  for (char c : piece) {
    if (c == '.') {
      if (partLength == 0) return false;
      ++parts;
      partLength = 0;
    } else if (isIdentifierCharacter(c)) {
      ++partLength;
    } else {
      return false;
    }
  }
  return parts >= 2 && partLength > 0;
}

std::vector<std::string> GameListParser::parse(std::string_view text) {
  std::vector<std::string> kept;
  std::unordered_set<std::string> seen;
  auto offer = [&](std::string_view piece) {
    if (!isValidBundleIdentifier(piece)) return;
    if (!seen.insert(lowercased(piece)).second) return;
    kept.emplace_back(piece);
  };

  std::size_t start = 0;
  std::size_t at = 0;
  while (at < text.size() && kept.size() < maxEntries) {
    if (const std::size_t length = separatorLength(text, at)) {
      offer(text.substr(start, at - start));
      at += length;
      start = at;
    } else {
      ++at;
    }
  }
  if (kept.size() < maxEntries) offer(text.substr(start));
  return kept;
}

}  // namespace tindra
