// HUDBarStyle: how the indicator's bar is drawn (the `hudBarStyle` setting, by raw string).
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class HUDBarStyle { continuous, segmented, ring };

template <>
struct EnumTable<HUDBarStyle> {
  static constexpr std::array cases{EnumCase{HUDBarStyle::continuous, "continuous"},
                                    EnumCase{HUDBarStyle::segmented, "segmented"},
                                    EnumCase{HUDBarStyle::ring, "ring"}};
};

// The segmented bar's number of segments.
inline constexpr int hudBarSegmentCount = 16;

// Segments lit for a level (clamped to 0...1 first): 0...16.
int litSegments(double level);

}  // namespace tindra
