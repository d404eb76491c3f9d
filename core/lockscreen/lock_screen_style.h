// LockScreenStyle: the look of the lock-screen widgets, stored by its raw string in
// `lockScreenStyle` (default frosted).
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class LockScreenStyle { clear, lightFrost, frosted };

template <>
struct EnumTable<LockScreenStyle> {
  static constexpr std::array cases{EnumCase{LockScreenStyle::clear, "clear"},
                                    EnumCase{LockScreenStyle::lightFrost, "lightFrost"},
                                    EnumCase{LockScreenStyle::frosted, "frosted"}};
};

}  // namespace tindra
