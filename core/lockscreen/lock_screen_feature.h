// LockScreenFeature: the two things Tindra can draw on the lock screen, each switched by its own
// setting and with its own notice setting for when the session guard turned it off.
#pragma once

#include <array>
#include <string_view>

namespace tindra {

enum class LockScreenFeature { widgets, notch };

inline constexpr std::array<LockScreenFeature, 2> allLockScreenFeatures{LockScreenFeature::widgets,
                                                                        LockScreenFeature::notch};

// "experimentalLockScreen" or "lockScreenNotch".
std::string_view enabledSettingName(LockScreenFeature feature);
// "lockScreenNotice" or "lockScreenNotchNotice".
std::string_view noticeSettingName(LockScreenFeature feature);

}  // namespace tindra
