// KeyboardBacklightAccess: what this program can do with the keyboard backlight.
#pragma once

#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class KeyboardBacklightAccess { readWrite, readOnly, unavailable };

template <>
struct EnumTable<KeyboardBacklightAccess> {
  static constexpr std::array cases{EnumCase{KeyboardBacklightAccess::readWrite, "readWrite"},
                                    EnumCase{KeyboardBacklightAccess::readOnly, "readOnly"},
                                    EnumCase{KeyboardBacklightAccess::unavailable, "unavailable"}};
};

}  // namespace tindra
