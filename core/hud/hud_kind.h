// HUDKind: which level the indicator shows. Stored and logged by its raw string.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class HUDKind { volume, brightness, keyboardBacklight };

template <>
struct EnumTable<HUDKind> {
  static constexpr std::array cases{EnumCase{HUDKind::volume, "volume"},
                                    EnumCase{HUDKind::brightness, "brightness"},
                                    EnumCase{HUDKind::keyboardBacklight, "keyboardBacklight"}};
};

}  // namespace tindra
