// GameListParser: turns the user's free text of game bundle identifiers into a clean list. Never
// fails: pieces that are not bundle identifiers are dropped, case-insensitive repeats keep the
// first spelling, at most 200 entries are kept, in the order of the text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tindra {

struct GameListParser {
  static constexpr std::size_t maxEntries = 200;
  static constexpr std::size_t maxIdentifierLength = 255;

  // Splits at white space (Unicode's too), line breaks, commas and semicolons.
  static std::vector<std::string> parse(std::string_view text);

  // At most 255 characters; two or more dot-separated parts, none empty; only ASCII letters,
  // digits, "-" and "_" in the parts.
  static bool isValidBundleIdentifier(std::string_view piece);
};

}  // namespace tindra
