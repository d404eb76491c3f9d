// NotchOpeningMode: how the closed notch opens, stored by its raw string in the settings
// ("hover", "click", "pressAndHold").
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class NotchOpeningMode { hover, click, pressAndHold };

inline constexpr std::array<NotchOpeningMode, 3> allNotchOpeningModes{
    NotchOpeningMode::hover, NotchOpeningMode::click, NotchOpeningMode::pressAndHold};

std::string_view rawValue(NotchOpeningMode mode);
// No value for an unknown string; the caller falls back to the setting's default.
std::optional<NotchOpeningMode> notchOpeningModeFromRaw(std::string_view raw);

}  // namespace tindra
