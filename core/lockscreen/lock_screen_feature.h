// LockScreenFeature: the two things Tindra can draw on the lock screen, each switched by its own
// setting and with its own notice setting for when the session guard turned it off.
#pragma once

#include <array>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class LockScreenFeature { widgets, notch };

template <>
struct EnumTable<LockScreenFeature> {
  static constexpr std::array cases{EnumCase{LockScreenFeature::widgets, "widgets"},
                                    EnumCase{LockScreenFeature::notch, "notch"}};
};

// "experimentalLockScreen" or "lockScreenNotch".
std::string_view enabledSettingName(LockScreenFeature feature);
// "lockScreenNotice" or "lockScreenNotchNotice".
std::string_view noticeSettingName(LockScreenFeature feature);

}  // namespace tindra
