// NotchColorStyle: whether the opened notch keeps to black and white or takes the colours of
// what it shows.
#pragma once

#include <array>

#include "base/enum_table.h"

namespace tindra {

enum class NotchColorStyle { monochrome, colorful };

template <>
struct EnumTable<NotchColorStyle> {
  static constexpr std::array cases{EnumCase{NotchColorStyle::monochrome, "monochrome"},
                                    EnumCase{NotchColorStyle::colorful, "colorful"}};
};

}  // namespace tindra
