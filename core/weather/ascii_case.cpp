#include "weather/ascii_case.h"

#include <algorithm>

namespace tindra {

char asciiLowercased(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string asciiLowercased(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = asciiLowercased(c);
  return lower;
}

bool asciiEqualsIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(
      a, b, {}, [](char c) { return asciiLowercased(c); },
      [](char c) { return asciiLowercased(c); });
}

}  // namespace tindra
