#include "nowplaying/track_identity.h"

#include <string_view>

#include "base/hash_combine.h"

namespace tindra {
namespace {

// Presence is hashed too, so ("a", absent) and (absent, "a") differ.
void feed(std::size_t& seed, const std::optional<std::string>& field) {
  hashCombine(seed, field ? 1 : 0);
  if (field) hashCombine(seed, std::hash<std::string_view>{}(*field));
}

}  // namespace

std::size_t hashValue(const TrackIdentity& identity) {
  std::size_t seed = 0;
  feed(seed, identity.bundleIdentifier);
  hashCombine(seed, std::hash<std::string_view>{}(identity.title));
  feed(seed, identity.artist);
  feed(seed, identity.album);
  return seed;
}

}  // namespace tindra
