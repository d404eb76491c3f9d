// ASCII-only letter case for protocol texts (symbol codes, header names, month names), which must
// not change with the user's locale.
#pragma once

#include <string>
#include <string_view>

namespace tindra {

char asciiLowercased(char c);
std::string asciiLowercased(std::string_view text);
bool asciiEqualsIgnoringCase(std::string_view a, std::string_view b);

}  // namespace tindra
