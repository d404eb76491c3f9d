// ASCII letter case for URL schemes, hosts and paths, which compare without regard to locale.
#pragma once

#include <string>
#include <string_view>

namespace tindra {

// `text` with A-Z turned into a-z; every other byte, UTF-8 included, unchanged.
std::string asciiLowercased(std::string_view text);

}  // namespace tindra
