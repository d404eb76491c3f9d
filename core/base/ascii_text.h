// Small ASCII text helpers for the names, labels and identifiers the parsers read. Bytes outside
// ASCII pass through untouched, so UTF-8 stays intact.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tindra {

// `c` with A-Z turned into a-z.
constexpr char asciiLowercased(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// `text` with A-Z turned into a-z.
std::string asciiLowercased(std::string_view text);

// Equal when equal after A-Z are turned into a-z.
bool asciiEqualsIgnoringCase(std::string_view a, std::string_view b);

// `text` without leading and trailing spaces, tabs and line breaks.
std::string_view trimmedASCII(std::string_view text);

// The whole of `digits` read as an unsigned number in `base` (10 or 16); none when empty, when any
// character is not a digit of that base, or when the value exceeds `limit`.
std::optional<std::uint32_t> unsignedNumber(std::string_view digits, int base, std::uint32_t limit);

}  // namespace tindra
