// Finding line breaks in UTF-8 text: LF, VT, FF, CR (CR LF counts as one break), NEL, and the
// Unicode line and paragraph separators. Shared by the Focus name and the banner button names.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tindra {

struct LineBreak {
  std::size_t offset;  // byte offset of the break
  std::size_t length;  // its length in bytes (2 for CR LF and NEL, 3 for U+2028 and U+2029)
};

// The first line break at or after `from`; none when there is no further one.
std::optional<LineBreak> findLineBreak(std::string_view text, std::size_t from = 0);

}  // namespace tindra
