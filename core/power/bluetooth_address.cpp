#include "power/bluetooth_address.h"

#include "base/ascii_text.h"

namespace tindra {
namespace {

constexpr std::size_t pairCount = 6;
constexpr std::size_t digitCount = 2 * pairCount;

bool isHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isSeparator(char c) {
  return c == ':' || c == '-' || c == '_' || c == '.';
}

// The twelve digits of `text`, or none when it is not one of the accepted layouts.
std::optional<std::string> digitsOf(std::string_view text) {
  std::string digits;
  if (text.size() == digitCount) {
    digits = text;
  } else if (text.size() == digitCount + pairCount - 1 && isSeparator(text[2])) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (i % 3 != 2) {
        digits += text[i];
      } else if (text[i] != text[2]) {
        return std::nullopt;
      }
    }
  } else {
    return std::nullopt;
  }
  for (char c : digits) {
    if (!isHexDigit(c)) return std::nullopt;
  }
  return digits;
}

}  // namespace

std::optional<std::string> BluetoothAddress::normalized(std::string_view text) {
  const std::optional<std::string> digits = digitsOf(trimmedASCII(text));
  if (!digits) return std::nullopt;
  const std::string lowered = asciiLowercased(*digits);
  std::string canonical;
  for (std::size_t i = 0; i < digitCount; i += 2) {
    if (i > 0) canonical += ':';
    canonical.append(lowered, i, 2);
  }
  return canonical;
}

}  // namespace tindra
