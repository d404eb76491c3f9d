// NowPlayingCapabilities: which transport commands a source can carry out, as option bits over
// a signed raw value. The six defined bits make raw value 63; unknown bits are kept as given.
#pragma once

#include <cstdint>

#include "nowplaying/now_playing_command.h"

namespace tindra {

struct NowPlayingCapabilities {
  std::int64_t rawValue = 0;

  static constexpr std::int64_t playPauseBit = 1 << 0;  // play, pause, togglePlayPause
  static constexpr std::int64_t nextTrackBit = 1 << 1;
  static constexpr std::int64_t previousTrackBit = 1 << 2;
  static constexpr std::int64_t seekBit = 1 << 3;
  static constexpr std::int64_t shuffleBit = 1 << 4;
  static constexpr std::int64_t repeatBit = 1 << 5;

  static constexpr NowPlayingCapabilities playPause() { return {playPauseBit}; }
  static constexpr NowPlayingCapabilities nextTrack() { return {nextTrackBit}; }
  static constexpr NowPlayingCapabilities previousTrack() { return {previousTrackBit}; }
  static constexpr NowPlayingCapabilities seek() { return {seekBit}; }
  static constexpr NowPlayingCapabilities shuffle() { return {shuffleBit}; }
  static constexpr NowPlayingCapabilities repeat() { return {repeatBit}; }
  static constexpr NowPlayingCapabilities all() { return {63}; }

  // True when every bit of `other` is set here.
  constexpr bool contains(NowPlayingCapabilities other) const {
    return (rawValue & other.rawValue) == other.rawValue;
  }
  // True when the source can carry out `command`.
  bool allows(const NowPlayingCommand& command) const;

  constexpr NowPlayingCapabilities operator|(NowPlayingCapabilities other) const {
    return {rawValue | other.rawValue};
  }
  friend bool operator==(NowPlayingCapabilities, NowPlayingCapabilities) = default;
};

// The capability a command needs.
NowPlayingCapabilities requiredCapability(const NowPlayingCommand& command);

}  // namespace tindra
