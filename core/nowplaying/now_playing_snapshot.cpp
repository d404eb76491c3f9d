#include "nowplaying/now_playing_snapshot.h"

#include <algorithm>
#include <cmath>

namespace tindra {

bool operator==(const NowPlayingSnapshot::Artwork::Embedded& a,
                const NowPlayingSnapshot::Artwork::Embedded& b) {
  if (a.bytes == b.bytes) return true;
  if (!a.bytes || !b.bytes) return false;
  return *a.bytes == *b.bytes;
}

NowPlayingSnapshot::Artwork NowPlayingSnapshot::Artwork::embedded(std::vector<std::uint8_t> bytes) {
  return {Embedded{std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes))}};
}

const std::vector<std::uint8_t>* NowPlayingSnapshot::Artwork::embeddedBytes() const {
  const Embedded* embedded = std::get_if<Embedded>(&value);
  return embedded ? embedded->bytes.get() : nullptr;
}

const std::string* NowPlayingSnapshot::Artwork::remoteURL() const {
  const Remote* remote = std::get_if<Remote>(&value);
  return remote ? &remote->url : nullptr;
}

TrackIdentity NowPlayingSnapshot::identity() const {
  return {bundleIdentifier, title, artist, album};
}

std::optional<double> NowPlayingSnapshot::position(double now) const {
  if (!elapsed || !std::isfinite(*elapsed)) return std::nullopt;
  double p = *elapsed;
  if (isPlaying && elapsedTimestamp && std::isfinite(*elapsedTimestamp) &&
      std::isfinite(playbackRate) && playbackRate > 0) {
    // A sample stamped in the future never moves the position backwards.
    p = *elapsed + std::max(0.0, now - *elapsedTimestamp) * playbackRate;
  }
  p = std::isnan(p) ? 0 : std::max(p, 0.0);
  if (duration) p = std::min(p, *duration);
  return p;
}

bool NowPlayingSnapshot::isEquivalent(const NowPlayingSnapshot& other, double now,
                                      double tolerance) const {
  NowPlayingSnapshot mine = *this;
  NowPlayingSnapshot theirs = other;
  mine.elapsed = mine.elapsedTimestamp = theirs.elapsed = theirs.elapsedTimestamp = std::nullopt;
  if (mine != theirs) return false;
  const std::optional<double> a = position(now);
  const std::optional<double> b = other.position(now);
  if (!a && !b) return true;
  if (!a || !b) return false;
  return std::abs(*a - *b) <= tolerance;
}

}  // namespace tindra
