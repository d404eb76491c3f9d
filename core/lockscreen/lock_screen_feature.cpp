#include "lockscreen/lock_screen_feature.h"

#include "settings/settings_keys.h"

namespace tindra {

std::string_view enabledSettingName(LockScreenFeature feature) {
  return feature == LockScreenFeature::notch ? settings::lockScreenNotch.name
                                             : settings::experimentalLockScreen.name;
}

std::string_view noticeSettingName(LockScreenFeature feature) {
  return feature == LockScreenFeature::notch ? settings::lockScreenNotchNotice.name
                                             : settings::lockScreenNotice.name;
}

}  // namespace tindra
