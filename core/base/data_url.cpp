#include "base/data_url.h"

#include <algorithm>

#include "base/ascii_text.h"
#include "base/base64.h"
#include "base/hex_digit.h"

namespace tindra {

namespace {

// "%41" becomes "A"; a "%" without two hex digits makes the whole text unreadable.
std::optional<std::string> percentDecoded(std::string_view text, std::size_t maxBytes) {
  std::string bytes;
  bytes.reserve(std::min(text.size(), maxBytes));
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (bytes.size() == maxBytes) return std::nullopt;
    if (text[i] != '%') {
      bytes.push_back(text[i]);
      continue;
    }
    if (i + 2 >= text.size()) return std::nullopt;
    const int high = hexDigitValue(text[i + 1]);
    const int low = hexDigitValue(text[i + 2]);
    if (high < 0 || low < 0) return std::nullopt;
    bytes.push_back(static_cast<char>(high * 16 + low));
    i += 2;
  }
  return bytes;
}

}  // namespace

std::optional<std::string> decodeDataURL(std::string_view url, std::size_t maxBytes) {
  constexpr std::string_view scheme = "data:";
  if (url.size() < scheme.size() || asciiLowercased(url.substr(0, scheme.size())) != scheme) {
    return std::nullopt;
  }
  const std::size_t comma = url.find(',');
  if (comma == std::string_view::npos) return std::nullopt;
  const std::string header = asciiLowercased(url.substr(scheme.size(), comma - scheme.size()));
  const bool base64 = header.ends_with(";base64");
  // Base64 text is a third longer than its bytes.
  const std::size_t textLimit = base64 ? maxBytes / 3 * 4 + 4 : maxBytes;
  std::optional<std::string> text = percentDecoded(url.substr(comma + 1), textLimit);
  if (!text || !base64) return text;
  auto bytes = decodeBase64(*text);
  if (!bytes || bytes->size() > maxBytes) return std::nullopt;
  return std::string(bytes->begin(), bytes->end());
}

}  // namespace tindra
