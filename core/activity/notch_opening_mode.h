// NotchOpeningMode: how the closed notch opens, stored by its raw string in the settings
// ("hover", "click", "pressAndHold").
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class NotchOpeningMode { hover, click, pressAndHold };

template <>
struct EnumTable<NotchOpeningMode> {
  static constexpr std::array cases{EnumCase{NotchOpeningMode::hover, "hover"},
                                    EnumCase{NotchOpeningMode::click, "click"},
                                    EnumCase{NotchOpeningMode::pressAndHold, "pressAndHold"}};
};

}  // namespace tindra
