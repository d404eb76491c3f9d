#include "base/ascii_text.h"

#include <algorithm>
#include <charconv>

namespace tindra {

std::string asciiLowercased(std::string_view text) {
  std::string lowered(text);
  for (char& c : lowered) c = asciiLowercased(c);
  return lowered;
}

bool asciiEqualsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return asciiLowercased(x) == asciiLowercased(y);
         });
}

std::string_view trimmedASCII(std::string_view text) {
  constexpr std::string_view whitespace = " \t\r\n";
  const std::size_t first = text.find_first_not_of(whitespace);
  if (first == std::string_view::npos) return {};
  const std::size_t last = text.find_last_not_of(whitespace);
  return text.substr(first, last - first + 1);
}

std::optional<std::uint32_t> unsignedNumber(std::string_view digits, int base,
                                            std::uint32_t limit) {
  std::uint32_t value = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value, base);
  if (error != std::errc{} || stop != end || value > limit) return std::nullopt;
  return value;
}

}  // namespace tindra
