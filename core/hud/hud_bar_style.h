// HUDBarStyle: how the indicator's bar is drawn (the `hudBarStyle` setting, by raw string).
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class HUDBarStyle { continuous, segmented, ring };

inline constexpr std::array<HUDBarStyle, 3> allHUDBarStyles{
    HUDBarStyle::continuous, HUDBarStyle::segmented, HUDBarStyle::ring};

// The segmented bar's number of segments.
inline constexpr int hudBarSegmentCount = 16;

std::string_view rawValue(HUDBarStyle style);
std::optional<HUDBarStyle> hudBarStyleFromRaw(std::string_view raw);

// Segments lit for a level (clamped to 0...1 first): 0...16.
int litSegments(double level);

}  // namespace tindra
