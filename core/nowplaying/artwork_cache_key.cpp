#include "nowplaying/artwork_cache_key.h"

#include <string_view>

#include "base/hash_combine.h"

namespace tindra {

std::optional<ArtworkCacheKey> ArtworkCacheKey::forSnapshot(const NowPlayingSnapshot& snapshot) {
  if (!snapshot.artist || snapshot.artist->empty()) return std::nullopt;
  if (snapshot.album && !snapshot.album->empty()) {
    return ArtworkCacheKey{Kind::album, *snapshot.artist, *snapshot.album};
  }
  if (snapshot.title.empty()) return std::nullopt;
  return ArtworkCacheKey{Kind::song, *snapshot.artist, snapshot.title};
}

std::size_t hashValue(const ArtworkCacheKey& key) {
  const std::hash<std::string_view> hash;
  std::size_t seed = static_cast<std::size_t>(key.kind);
  for (std::string_view text : {std::string_view(key.artist), std::string_view(key.name)}) {
    hashCombine(seed, hash(text));
  }
  return seed;
}

}  // namespace tindra
