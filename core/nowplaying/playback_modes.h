// ShuffleMode and RepeatMode: the player's shuffle and repeat settings as the notch shows and
// sends them. Raw strings are the case names, for anything that persists them.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class ShuffleMode { off, albums, tracks };

template <>
struct EnumTable<ShuffleMode> {
  static constexpr std::array cases{EnumCase{ShuffleMode::off, "off"},
                                    EnumCase{ShuffleMode::albums, "albums"},
                                    EnumCase{ShuffleMode::tracks, "tracks"}};
};
enum class RepeatMode { off, track, all };

template <>
struct EnumTable<RepeatMode> {
  static constexpr std::array cases{EnumCase{RepeatMode::off, "off"},
                                    EnumCase{RepeatMode::track, "track"},
                                    EnumCase{RepeatMode::all, "all"}};
};

// The adapter's wire codes: 1 off, 2 albums or track, 3 tracks or all.
int adapterCode(ShuffleMode mode);
int adapterCode(RepeatMode mode);
// Read for every adapter line, so inline.
constexpr std::optional<ShuffleMode> shuffleModeFromAdapterCode(double code) {
  if (code == 1) return ShuffleMode::off;
  if (code == 2) return ShuffleMode::albums;
  if (code == 3) return ShuffleMode::tracks;
  return std::nullopt;
}
constexpr std::optional<RepeatMode> repeatModeFromAdapterCode(double code) {
  if (code == 1) return RepeatMode::off;
  if (code == 2) return RepeatMode::track;
  if (code == 3) return RepeatMode::all;
  return std::nullopt;
}

}  // namespace tindra
