// NotchHideReason: why the notch is stepping aside on a display.
#pragma once

#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class NotchHideReason { fullScreen, missionControl, game };

template <>
struct EnumTable<NotchHideReason> {
  static constexpr std::array cases{EnumCase{NotchHideReason::fullScreen, "fullScreen"},
                                    EnumCase{NotchHideReason::missionControl, "missionControl"},
                                    EnumCase{NotchHideReason::game, "game"}};
};

}  // namespace tindra
