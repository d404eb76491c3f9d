// BrightnessAccess: what this program can do with a display's brightness.
#pragma once

#include <string_view>

namespace tindra {

enum class BrightnessAccess { readWrite, readOnly, unavailable };

// The case name, for logs ("readOnly").
std::string_view name(BrightnessAccess access);

}  // namespace tindra
