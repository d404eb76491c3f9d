// HUDKind: which level the indicator shows. Stored and logged by its raw string.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class HUDKind { volume, brightness, keyboardBacklight };

inline constexpr std::array<HUDKind, 3> allHUDKinds{HUDKind::volume, HUDKind::brightness,
                                                    HUDKind::keyboardBacklight};

std::string_view rawValue(HUDKind kind);
// No value for any string but the three raw values.
std::optional<HUDKind> hudKindFromRaw(std::string_view raw);

}  // namespace tindra
