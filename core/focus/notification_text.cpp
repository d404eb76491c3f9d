#include "focus/notification_text.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "base/ascii_text.h"
#include "base/unicode_text.h"
#include "base/utf8.h"

namespace tindra {

namespace {

constexpr std::uint32_t replacementCharacter = 0xFFFD;
// Far more than any entity we decode, so a stray "&" never makes us look far ahead.
constexpr std::size_t longestEntity = 10;

bool isAsciiLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::uint32_t decodeAt(std::string_view text, std::size_t& i) {
  const auto byte = static_cast<unsigned char>(text[i]);
  if (byte < 0x80) {
    ++i;
    return byte;
  }
  const std::size_t length = utf8SequenceLength(text.data() + i, text.data() + text.size());
  if (length == 0) {
    ++i;
    return replacementCharacter;
  }
  std::uint32_t codePoint = byte & (0xFF >> (length + 1));
  for (std::size_t k = 1; k < length; ++k) {
    codePoint = (codePoint << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
  }
  i += length;
  return codePoint;
}

bool isControl(std::uint32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

std::optional<std::uint32_t> numericEntity(std::string_view digits) {
  const bool hex = !digits.empty() && (digits[0] == 'x' || digits[0] == 'X');
  if (hex) digits.remove_prefix(1);
  if (digits.empty()) return std::nullopt;
  std::uint32_t value = 0;
  for (const char c : digits) {
    int digit = -1;
    if (c >= '0' && c <= '9') digit = c - '0';
    if (hex && c >= 'a' && c <= 'f') digit = c - 'a' + 10;
    if (hex && c >= 'A' && c <= 'F') digit = c - 'A' + 10;
    if (digit < 0) return std::nullopt;
    value = value * (hex ? 16 : 10) + static_cast<std::uint32_t>(digit);
    if (value > 0x10FFFF) return std::nullopt;
  }
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  return value == 0 || surrogate ? replacementCharacter : value;
}

std::optional<std::uint32_t> entity(std::string_view name) {
  if (name == "amp") return '&';
  if (name == "lt") return '<';
  if (name == "gt") return '>';
  if (name == "quot") return '"';
  if (name == "apos") return '\'';
  if (name.starts_with('#')) return numericEntity(name.substr(1));
  return std::nullopt;
}

// The tag's name in lower case ("br", "/b", "img"), from the text between "<" and ">".
std::string tagName(std::string_view tag) {
  const std::size_t end = tag.find_first_of(" \t\r\n/", tag.starts_with('/') ? 1 : 0);
  return asciiLowercased(tag.substr(0, end));
}

}  // namespace

std::string NotificationText::plain(std::string_view text, std::size_t maxLength) {
  std::string out;
  out.reserve(std::min(text.size(), maxLength * 4));
  std::size_t length = 0;
  bool cut = false;
  for (std::size_t i = 0; i < text.size();) {
    std::uint32_t c = decodeAt(text, i);
    if (c == '\r') {
      if (i < text.size() && text[i] == '\n') ++i;
      c = '\n';
    } else if (c != '\n' && isControl(c)) {
      c = ' ';
    }
    if (length == maxLength) {
      cut = true;
      break;
    }
    appendUTF8(out, c);
    ++length;
  }
  std::string trimmed(trimmedUnicodeWhitespace(out));
  if (cut && maxLength > 0) {
    // Make room for the ellipsis by dropping the last code point.
    while (!trimmed.empty() && (static_cast<unsigned char>(trimmed.back()) & 0xC0) == 0x80) {
      trimmed.pop_back();
    }
    if (!trimmed.empty()) trimmed.pop_back();
    trimmed = std::string(trimmedUnicodeWhitespace(trimmed)) + "…";
  }
  return trimmed;
}

std::string NotificationText::fromMarkup(std::string_view markup, std::size_t maxLength) {
  std::string text;
  text.reserve(std::min(markup.size(), maxLength * 8));
  // Markup is read only as far as the plain text can reach: a cut body needs no more.
  for (std::size_t i = 0; i < markup.size() && text.size() < maxLength * 8;) {
    const char c = markup[i];
    if (c == '<' && i + 1 < markup.size() &&
        (isAsciiLetter(markup[i + 1]) || markup[i + 1] == '/')) {
      const std::size_t close = markup.find_first_of("<>", i + 1);
      if (close != std::string_view::npos && markup[close] == '>') {
        const std::string name = tagName(markup.substr(i + 1, close - i - 1));
        if (name == "br") text += '\n';
        i = close + 1;
        continue;
      }
    }
    if (c == '&') {
      const std::size_t end = markup.find(';', i + 1);
      if (end != std::string_view::npos && end - i <= longestEntity) {
        if (const std::optional<std::uint32_t> decoded =
                entity(markup.substr(i + 1, end - i - 1))) {
          appendUTF8(text, *decoded);
          i = end + 1;
          continue;
        }
      }
    }
    text += c;
    ++i;
  }
  return plain(text, maxLength);
}

}  // namespace tindra
