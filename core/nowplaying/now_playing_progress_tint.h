// NowPlayingProgressTint: whether the progress bar uses the standard colour or one taken from
// the artwork (setting `nowPlayingProgressTint`, stored by raw string).
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class NowPlayingProgressTint { standard, artwork };

inline constexpr std::array<NowPlayingProgressTint, 2> allNowPlayingProgressTints{
    NowPlayingProgressTint::standard, NowPlayingProgressTint::artwork};

std::string_view rawValue(NowPlayingProgressTint tint);
std::optional<NowPlayingProgressTint> nowPlayingProgressTintFromRaw(std::string_view raw);

}  // namespace tindra
