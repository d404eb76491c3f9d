// NowPlayingSnapshot: the playing track as one source reported it at one moment. A pure value:
// positions are extrapolated from `now` (seconds since 1970) given by the caller.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <variant>

#include "nowplaying/now_playing_capabilities.h"
#include "nowplaying/playback_modes.h"
#include "nowplaying/track_identity.h"

namespace tindra {

struct NowPlayingSnapshot {
  // Seven days: the longest duration or position any source may report; longer is garbage.
  static constexpr double maxSeconds = 604'800;

  // Cover art as the source delivered it. Embedded bytes are shared and immutable, so copying a
  // snapshot never copies a cover; equality still compares the bytes.
  struct Artwork {
    struct Embedded {
      std::shared_ptr<const std::uint8_t[]> data;
      std::size_t size = 0;
      std::span<const std::uint8_t> bytes() const { return {data.get(), size}; }
      friend bool operator==(const Embedded& a, const Embedded& b);
    };
    struct Remote {
      std::string url;
      friend bool operator==(const Remote&, const Remote&) = default;
    };

    std::variant<Embedded, Remote> value;

    // A cover holding a copy of `bytes`.
    static Artwork embedded(std::span<const std::uint8_t> bytes);
    // A cover sharing `size` bytes at `data`, which nobody may change any more.
    static Artwork embedded(std::shared_ptr<const std::uint8_t[]> data, std::size_t size) {
      return {Embedded{std::move(data), size}};
    }
    static Artwork remote(std::string url) { return {Remote{std::move(url)}}; }
    // The image bytes of an embedded cover; none for a remote one.
    std::optional<std::span<const std::uint8_t>> embeddedBytes() const;
    // The address of a remote cover; nullptr for an embedded one.
    const std::string* remoteURL() const;

    friend bool operator==(const Artwork&, const Artwork&) = default;
  };

  std::optional<std::string> bundleIdentifier;
  std::optional<std::string> parentBundleIdentifier;
  // The player's process, where the adapter knows it (the desktop's does): what the live
  // spectrum listens to.
  std::optional<std::int64_t> processIdentifier;
  std::string title;
  std::optional<std::string> artist;
  std::optional<std::string> album;
  bool isPlaying = false;
  std::optional<double> duration;          // seconds
  std::optional<double> elapsed;           // seconds, at `elapsedTimestamp`
  std::optional<double> elapsedTimestamp;  // seconds since 1970
  double playbackRate = 0;                 // 0 while paused
  std::optional<ShuffleMode> shuffle;
  std::optional<RepeatMode> repeatMode;
  std::optional<Artwork> artwork;
  NowPlayingCapabilities capabilities;

  TrackIdentity identity() const;

  // The position at `now`, advanced from the sample while playing, within 0 ... duration; none
  // when `elapsed` is absent or not finite.
  std::optional<double> position(double now) const;

  // Equal apart from the sampling of the position, whose extrapolations at `now` may differ by
  // at most `tolerance` seconds.
  bool isEquivalent(const NowPlayingSnapshot& other, double now, double tolerance) const;

  friend bool operator==(const NowPlayingSnapshot&, const NowPlayingSnapshot&) = default;
};

}  // namespace tindra
