// NotchPresentation: whether the notch shows only its compact, notch-sized content or the
// expanded panel.
#pragma once

#include <array>

#include "base/enum_table.h"

namespace tindra {

enum class NotchPresentation { compact, expanded };

template <>
struct EnumTable<NotchPresentation> {
  static constexpr std::array cases{EnumCase{NotchPresentation::compact, "compact"},
                                    EnumCase{NotchPresentation::expanded, "expanded"}};
};

}  // namespace tindra
