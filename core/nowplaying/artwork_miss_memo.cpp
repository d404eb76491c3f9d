#include "nowplaying/artwork_miss_memo.h"

namespace tindra {

void ArtworkMissMemo::recordMiss(const ArtworkCacheKey& key, double now) {
  std::erase_if(misses, [&](const auto& entry) { return now - entry.second >= retryAfter; });
  misses[key] = now;
}

bool ArtworkMissMemo::isBlocked(const ArtworkCacheKey& key, double now) const {
  const auto found = misses.find(key);
  if (found == misses.end()) return false;
  // A clock set back makes the age negative: still blocked, until the time passes again.
  return now - found->second < retryAfter;
}

}  // namespace tindra
