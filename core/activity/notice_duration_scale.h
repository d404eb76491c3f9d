// NoticeDurationScale: the user's notice length, stored by its raw string in the settings.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class NoticeDurationScale { short_, medium, long_ };

inline constexpr std::array<NoticeDurationScale, 3> allNoticeDurationScales{
    NoticeDurationScale::short_, NoticeDurationScale::medium, NoticeDurationScale::long_};

std::string_view rawValue(NoticeDurationScale scale);
std::optional<NoticeDurationScale> noticeDurationScaleFromRaw(std::string_view raw);

// Scales a notice duration: short takes 40 % off but never below 1.5 s (and never lengthens a
// shorter one), long adds 60 %. Medium, not-finite and non-positive durations pass unchanged.
double scale(NoticeDurationScale scale, double seconds);

}  // namespace tindra
