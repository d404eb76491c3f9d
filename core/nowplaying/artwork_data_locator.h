// Finds, without building a tree, the raw text of a message's "payload"."artworkData" string,
// so that a cover of megabytes is decoded straight from the line instead of being copied
// through the generic JSON reader first. The scan follows JSON's string and nesting rules but
// validates nothing; the caller checks the text it gets and lets the reader judge the rest.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tindra {

struct ArtworkDataSpan {
  std::size_t begin;  // first byte after the opening quote
  std::size_t end;    // the closing quote
};

// The span when the line is an object with exactly one "payload" member whose object value has
// exactly one "artworkData" member holding a string, and no member name at those two levels is
// written with escapes (which could hide a duplicate). Otherwise none.
std::optional<ArtworkDataSpan> locateArtworkData(std::string_view line);

}  // namespace tindra
