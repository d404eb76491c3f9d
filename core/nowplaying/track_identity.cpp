#include "nowplaying/track_identity.h"

#include <string_view>

namespace tindra {
namespace {

// Boost's mixing step: order-sensitive, so ("a", absent) and (absent, "a") differ.
void combine(std::size_t& seed, std::size_t value) {
  seed ^= value + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
}

void feed(std::size_t& seed, const std::optional<std::string>& field) {
  combine(seed, field ? 1 : 0);
  if (field) combine(seed, std::hash<std::string_view>{}(*field));
}

}  // namespace

std::size_t hashValue(const TrackIdentity& identity) {
  std::size_t seed = 0;
  feed(seed, identity.bundleIdentifier);
  combine(seed, std::hash<std::string_view>{}(identity.title));
  feed(seed, identity.artist);
  feed(seed, identity.album);
  return seed;
}

}  // namespace tindra
