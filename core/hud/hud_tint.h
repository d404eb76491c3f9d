// HUDTint: the colour of the indicator's bar (the `hudTint` setting, by raw string). `level` tints
// by the level itself, from blue through green to orange.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class HUDTint { white, level, accent };

template <>
struct EnumTable<HUDTint> {
  static constexpr std::array cases{EnumCase{HUDTint::white, "white"},
                                    EnumCase{HUDTint::level, "level"},
                                    EnumCase{HUDTint::accent, "accent"}};
};

// Colour channels in 0...1.
struct HUDColor {
  double red;
  double green;
  double blue;
  friend bool operator==(const HUDColor&, const HUDColor&) = default;
};

// The `level` tint's colour for a level (clamped to 0...1 first).
HUDColor levelColor(double level);

}  // namespace tindra
