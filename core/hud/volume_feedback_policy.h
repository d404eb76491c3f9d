// VolumeFeedbackPolicy: whether a handled volume key plays the volume-change sound. Follows the
// system's preference (or our fallback setting when it is unset); Shift inverts it, as the system
// itself does.
#pragma once

#include <optional>
#include <string_view>

#include "base/json_value.h"
#include "hud/key_modifiers.h"
#include "hud/volume_action.h"
#include "hud/volume_state.h"

namespace tindra {

struct VolumeFeedbackPolicy {
  VolumeFeedbackPolicy() = delete;

  // The system preference that plays feedback when the volume changes.
  static constexpr std::string_view preferenceKey = "com.apple.sound.beep.feedback";

  // Reads the stored preference: booleans, numbers (non-zero is on) and the strings "1", "true",
  // "yes", "0", "false", "no" (any case, white space trimmed). None for null and anything else.
  static std::optional<bool> systemSetting(const JSONValue& value);

  // Whether the sound plays after `action` left the output at `result`.
  static bool shouldPlay(VolumeAction action, VolumeState result, std::optional<bool> systemSetting,
                         bool fallback, KeyModifiers modifiers, bool isYielded);
};

}  // namespace tindra
