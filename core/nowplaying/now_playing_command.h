// NowPlayingCommand: a transport command sent to the playing source. Two commands are equal
// when they are the same case with an equal payload (seek positions compare as doubles).
#pragma once

#include <variant>

#include "nowplaying/playback_modes.h"

namespace tindra {

struct NowPlayingCommand {
  struct Seek {
    double to;  // absolute position in seconds
    friend bool operator==(const Seek&, const Seek&) = default;
  };
  struct SetShuffle {
    ShuffleMode mode;
    friend bool operator==(const SetShuffle&, const SetShuffle&) = default;
  };
  struct SetRepeat {
    RepeatMode mode;
    friend bool operator==(const SetRepeat&, const SetRepeat&) = default;
  };
  struct Play {
    friend bool operator==(const Play&, const Play&) = default;
  };
  struct Pause {
    friend bool operator==(const Pause&, const Pause&) = default;
  };
  struct TogglePlayPause {
    friend bool operator==(const TogglePlayPause&, const TogglePlayPause&) = default;
  };
  struct NextTrack {
    friend bool operator==(const NextTrack&, const NextTrack&) = default;
  };
  struct PreviousTrack {
    friend bool operator==(const PreviousTrack&, const PreviousTrack&) = default;
  };
  using Value = std::variant<Seek, SetShuffle, SetRepeat, Play, Pause, TogglePlayPause, NextTrack,
                             PreviousTrack>;

  Value value;

  static NowPlayingCommand seek(double to) { return {Seek{to}}; }
  static NowPlayingCommand setShuffle(ShuffleMode mode) { return {SetShuffle{mode}}; }
  static NowPlayingCommand setRepeat(RepeatMode mode) { return {SetRepeat{mode}}; }
  static NowPlayingCommand play() { return {Play{}}; }
  static NowPlayingCommand pause() { return {Pause{}}; }
  static NowPlayingCommand togglePlayPause() { return {TogglePlayPause{}}; }
  static NowPlayingCommand nextTrack() { return {NextTrack{}}; }
  static NowPlayingCommand previousTrack() { return {PreviousTrack{}}; }

  friend bool operator==(const NowPlayingCommand&, const NowPlayingCommand&) = default;
};

}  // namespace tindra
