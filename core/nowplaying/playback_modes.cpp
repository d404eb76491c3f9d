#include "nowplaying/playback_modes.h"

namespace tindra {

std::string_view rawValue(ShuffleMode mode) {
  switch (mode) {
    case ShuffleMode::off:
      return "off";
    case ShuffleMode::albums:
      return "albums";
    case ShuffleMode::tracks:
      return "tracks";
  }
  return "off";
}

std::string_view rawValue(RepeatMode mode) {
  switch (mode) {
    case RepeatMode::off:
      return "off";
    case RepeatMode::track:
      return "track";
    case RepeatMode::all:
      return "all";
  }
  return "off";
}

std::optional<ShuffleMode> shuffleModeFromRaw(std::string_view raw) {
  for (ShuffleMode mode : allShuffleModes) {
    if (rawValue(mode) == raw) return mode;
  }
  return std::nullopt;
}

std::optional<RepeatMode> repeatModeFromRaw(std::string_view raw) {
  for (RepeatMode mode : allRepeatModes) {
    if (rawValue(mode) == raw) return mode;
  }
  return std::nullopt;
}

// The codes are the case order plus one, for both modes.
int adapterCode(ShuffleMode mode) {
  return static_cast<int>(mode) + 1;
}
int adapterCode(RepeatMode mode) {
  return static_cast<int>(mode) + 1;
}

std::optional<ShuffleMode> shuffleModeFromAdapterCode(double code) {
  if (code == 1) return ShuffleMode::off;
  if (code == 2) return ShuffleMode::albums;
  if (code == 3) return ShuffleMode::tracks;
  return std::nullopt;
}

std::optional<RepeatMode> repeatModeFromAdapterCode(double code) {
  if (code == 1) return RepeatMode::off;
  if (code == 2) return RepeatMode::track;
  if (code == 3) return RepeatMode::all;
  return std::nullopt;
}

}  // namespace tindra
