// VolumeSoundPreference: the desktop's own choice of whether changing the volume plays a sound,
// followed as the user changes it. None where the desktop keeps no such choice; then Tindra's
// volumeFeedbackFallback setting decides. Its check says whose setting decides.
// VolumeSoundPreference::Null is the one of a desktop without the choice.
#pragma once

#include <memory>
#include <optional>

#include "base/backend.h"
#include "base/shared_backends.h"

namespace tindra {

class VolumeSoundPreference : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<VolumeSoundPreference>;

  // This desktop's choice, or the do-nothing source where it keeps none (made in the platform's
  // folder).
  static std::unique_ptr<VolumeSoundPreference> forPlatform(SharedBackends& shared);

  // Whether the desktop plays a sound when the volume changes; none while unknown.
  const std::optional<bool>& systemSetting() const { return systemSetting_; }

 signals:
  void systemSettingChanged();

 protected:
  void publish(std::optional<bool> setting) {
    if (assignIfChanged(systemSetting_, setting)) emit systemSettingChanged();
  }

 private:
  std::optional<bool> systemSetting_;
};

}  // namespace tindra
