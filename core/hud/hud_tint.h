// HUDTint: the colour of the indicator's bar (the `hudTint` setting, by raw string). `level` tints
// by the level itself, from blue through green to orange.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class HUDTint { white, level, accent };

inline constexpr std::array<HUDTint, 3> allHUDTints{HUDTint::white, HUDTint::level,
                                                    HUDTint::accent};

// Colour channels in 0...1.
struct HUDColor {
  double red;
  double green;
  double blue;
  friend bool operator==(const HUDColor&, const HUDColor&) = default;
};

std::string_view rawValue(HUDTint tint);
std::optional<HUDTint> hudTintFromRaw(std::string_view raw);

// The `level` tint's colour for a level (clamped to 0...1 first).
HUDColor levelColor(double level);

}  // namespace tindra
