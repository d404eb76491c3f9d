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

}  // namespace tindra
