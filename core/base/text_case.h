// Lower-casing for comparing identifiers without regard to case: Unicode's full lower-case
// mapping in the root locale (so no Turkish dotless i surprises), with a fast path for ASCII.
#pragma once

#include <string>
#include <string_view>

namespace tindra {

// `text` as UTF-8; malformed sequences come back as U+FFFD.
std::string lowercased(std::string_view text);

}  // namespace tindra
