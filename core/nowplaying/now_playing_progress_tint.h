// NowPlayingProgressTint: whether the progress bar uses the standard colour or one taken from
// the artwork (setting `nowPlayingProgressTint`, stored by raw string).
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class NowPlayingProgressTint { standard, artwork };

template <>
struct EnumTable<NowPlayingProgressTint> {
  static constexpr std::array cases{EnumCase{NowPlayingProgressTint::standard, "standard"},
                                    EnumCase{NowPlayingProgressTint::artwork, "artwork"}};
};

}  // namespace tindra
