// LockScreenStyle: the look of the lock-screen widgets, stored by its raw string in
// `lockScreenStyle` (default frosted).
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class LockScreenStyle { clear, lightFrost, frosted };

inline constexpr std::array<LockScreenStyle, 3> allLockScreenStyles{
    LockScreenStyle::clear, LockScreenStyle::lightFrost, LockScreenStyle::frosted};

std::string_view rawValue(LockScreenStyle style);
std::optional<LockScreenStyle> lockScreenStyleFromRaw(std::string_view raw);

}  // namespace tindra
