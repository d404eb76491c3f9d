// BrightnessAccess: what this program can do with a display's brightness.
#pragma once

#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class BrightnessAccess { readWrite, readOnly, unavailable };

template <>
struct EnumTable<BrightnessAccess> {
  static constexpr std::array cases{EnumCase{BrightnessAccess::readWrite, "readWrite"},
                                    EnumCase{BrightnessAccess::readOnly, "readOnly"},
                                    EnumCase{BrightnessAccess::unavailable, "unavailable"}};
};

}  // namespace tindra
