// ShuffleMode and RepeatMode: the player's shuffle and repeat settings as the notch shows and
// sends them. Raw strings are the case names, for anything that persists them.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class ShuffleMode { off, albums, tracks };
enum class RepeatMode { off, track, all };

inline constexpr std::array<ShuffleMode, 3> allShuffleModes{ShuffleMode::off, ShuffleMode::albums,
                                                            ShuffleMode::tracks};
inline constexpr std::array<RepeatMode, 3> allRepeatModes{RepeatMode::off, RepeatMode::track,
                                                          RepeatMode::all};

std::string_view rawValue(ShuffleMode mode);
std::string_view rawValue(RepeatMode mode);
std::optional<ShuffleMode> shuffleModeFromRaw(std::string_view raw);
std::optional<RepeatMode> repeatModeFromRaw(std::string_view raw);

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
