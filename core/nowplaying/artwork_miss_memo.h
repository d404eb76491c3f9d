// ArtworkMissMemo: remembers covers the catalogue did not have, so a track without a findable
// cover is not searched again on every poll. A miss blocks its key for `retryAfter` seconds;
// expired entries are dropped as new misses arrive, so the memo stays small.
#pragma once

#include <unordered_map>

#include "nowplaying/artwork_cache_key.h"

namespace tindra {

struct ArtworkMissMemo {
  static constexpr double defaultRetryAfter = 6 * 3600;  // covers rarely appear within hours

  double retryAfter = defaultRetryAfter;               // seconds
  std::unordered_map<ArtworkCacheKey, double> misses;  // key → time of the miss, since 1970

  // Records that a search for `key` found nothing at `now`.
  void recordMiss(const ArtworkCacheKey& key, double now);
  // True while a miss of `key` is younger than `retryAfter` at `now`.
  bool isBlocked(const ArtworkCacheKey& key, double now) const;
};

}  // namespace tindra
