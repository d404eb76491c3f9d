// ArtworkCacheKey: what a cover is cached and searched under: an album (artist and album title)
// or, for tracks without an album, a song (artist and track title). Compared as exact strings;
// hashable with std::hash.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "base/enum_table.h"
#include "nowplaying/now_playing_snapshot.h"

namespace tindra {

struct ArtworkCacheKey {
  enum class Kind { album, song };

  Kind kind = Kind::album;
  std::string artist;
  std::string name;  // album title for `album`, track title for `song`

  // The key for a snapshot's cover: its album when it has one, else its title; none without an
  // artist (the catalogue cannot be searched for a title alone).
  static std::optional<ArtworkCacheKey> forSnapshot(const NowPlayingSnapshot& snapshot);

  friend bool operator==(const ArtworkCacheKey&, const ArtworkCacheKey&) = default;
};

template <>
struct EnumTable<ArtworkCacheKey::Kind> {
  using E = ArtworkCacheKey::Kind;
  static constexpr std::array cases{EnumCase{E::album, "album"}, EnumCase{E::song, "song"}};
};

std::size_t hashValue(const ArtworkCacheKey& key);

}  // namespace tindra

template <>
struct std::hash<tindra::ArtworkCacheKey> {
  std::size_t operator()(const tindra::ArtworkCacheKey& key) const {
    return tindra::hashValue(key);
  }
};
