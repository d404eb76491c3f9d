// ITunesArtworkSearch: finds a cover in the iTunes Search API. Builds the search address for a
// key and picks the 600-pixel cover out of a response, matching artist and title after folding
// case and diacritics. Never touches the network: the app sends the request and hands back the
// bytes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "nowplaying/artwork_cache_key.h"
#include "nowplaying/artwork_miss_memo.h"

namespace tindra::ITunesArtworkSearch {

inline constexpr std::string_view host = "itunes.apple.com";
inline constexpr std::size_t maxResponseBytes = 524'288;  // larger responses are not read
inline constexpr int coverPixels = 600;

// The GET address: https://itunes.apple.com/search?term=…&media=music&entity=…&limit=10, the
// term being the artist and the name joined by a space.
std::string request(const ArtworkCacheKey& key);

// The address to search now; none when online look-up is off or a recent miss blocks the key.
std::optional<std::string> requestIfAllowed(const ArtworkCacheKey& key, bool onlineLookupEnabled,
                                            const ArtworkMissMemo& misses, double now);

// The cover address of the first result by the key's artist whose song or album title matches
// the key's name, rewritten from the 100-pixel thumbnail to 600 pixels; none for responses over
// `maxResponseBytes`, unreadable ones and those without a match.
std::optional<std::string> artworkURL(std::string_view response, const ArtworkCacheKey& key);

// Text as it is compared: case and diacritics folded, then a catalogue suffix " - ep" or
// " - single" dropped.
std::string normalizedForMatching(std::string_view text);

// `text` percent-encoded for a query value: everything but A-Z a-z 0-9 - . _ ~ becomes %XX.
std::string percentEncoded(std::string_view text);

}  // namespace tindra::ITunesArtworkSearch
