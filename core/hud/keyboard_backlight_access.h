// KeyboardBacklightAccess: what this program can do with the keyboard backlight.
#pragma once

#include <string_view>

namespace tindra {

enum class KeyboardBacklightAccess { readWrite, readOnly, unavailable };

// The case name, for logs ("readOnly").
std::string_view name(KeyboardBacklightAccess access);

}  // namespace tindra
