// TrackIdentity: what makes a track the same track: owner, title, artist and album compared as
// exact strings. A change of identity means a new track. Hashable with std::hash.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace tindra {

struct TrackIdentity {
  std::optional<std::string> bundleIdentifier;
  std::string title;
  std::optional<std::string> artist;
  std::optional<std::string> album;

  friend bool operator==(const TrackIdentity&, const TrackIdentity&) = default;
};

// Feeds, in field order, a presence flag and the text of each optional field and the title, so
// an absent field and an empty one hash apart.
std::size_t hashValue(const TrackIdentity& identity);

}  // namespace tindra

template <>
struct std::hash<tindra::TrackIdentity> {
  std::size_t operator()(const tindra::TrackIdentity& identity) const {
    return tindra::hashValue(identity);
  }
};
