// Feeds arbitrary bytes to the artwork search as the catalogue's response, for a song and an
// album key whose names come from the input's first line. A found address is never empty and
// never keeps the thumbnail size. The input as a cover address: one the policy lets through is
// always https on a catalogue host.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "nowplaying/artwork_url_policy.h"
#include "nowplaying/itunes_artwork_search.h"

using namespace tindra;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t newline = input.find('\n');
  const std::string_view names = newline == std::string_view::npos ? "" : input.substr(0, newline);
  const std::string_view response =
      newline == std::string_view::npos ? input : input.substr(newline + 1);
  const std::size_t tab = names.find('\t');
  const std::string artist(names.substr(0, tab));
  const std::string name(tab == std::string_view::npos ? "" : names.substr(tab + 1));

  for (ArtworkCacheKey::Kind kind : {ArtworkCacheKey::Kind::song, ArtworkCacheKey::Kind::album}) {
    const auto url = ITunesArtworkSearch::artworkURL(response, {kind, artist, name});
    if (url && (url->empty() || url->find("100x100bb") != std::string::npos)) std::abort();
  }
  ITunesArtworkSearch::normalizedForMatching(input.substr(0, 256));
  if (const auto address = ArtworkURLPolicy::downloadURL(input.substr(0, 4096))) {
    if (!address->starts_with("https://") || !ArtworkURLPolicy::imageHost(*address)) std::abort();
  }
  return 0;
}
