// ArtworkService: the cover of the playing track and the tint it gives the progress bar.
// Embedded covers are decoded and scaled down off the main thread; remote ones are downloaded
// only from the catalogue hosts; a track without a cover, or whose cover is on another host or
// cannot be downloaded, is looked up in the iTunes catalogue when the user allows it. Results are
// cached by address and by album or song, and a look-up that found nothing is not repeated for
// hours (ArtworkMissMemo). A result that arrives after the track changed is dropped.
#pragma once

#include <QImage>
#include <QObject>
#include <functional>
#include <optional>

#include "base/lru_cache.h"
#include "base/srgb_color.h"
#include "media/artwork_fetcher.h"
#include "nowplaying/artwork_cache_key.h"
#include "nowplaying/artwork_miss_memo.h"
#include "nowplaying/now_playing_snapshot.h"

namespace tindra {

class ArtworkService : public QObject {
  Q_OBJECT

 public:
  struct Artwork {
    QImage image;                   // at most `maxSide` pixels on its longer side
    std::optional<SRGBColor> tint;  // none when no colour of it would be readable on the bar
  };
  using Clock = std::function<double()>;  // seconds since 1970
  using Allowed = std::function<bool()>;  // the artworkOnlineLookup setting

  // The largest cover drawn is 76 points across, 152 pixels on a display of twice the density.
  static constexpr int maxSide = 160;
  static constexpr qint64 maxCoverBytes = 10'000'000;  // a download larger is not a cover
  // One cover is shown; the cache is for the tracks of an album played again, skipped back to
  // or coming round in a short playlist, and each cover in it holds 100 kB for as long as
  // Tindra runs.
  static constexpr std::size_t cacheCapacity = 8;
  static constexpr SRGBColor barBackground{0.23, 0.23, 0.24};

  ArtworkService(ArtworkFetcher& fetcher, Allowed onlineLookup, Clock now,
                 QObject* parent = nullptr);

  // The cover for `snapshot`'s track; `changed` follows once it (or that there is none) is
  // known. Asking again for the same track and cover does nothing.
  void show(const std::optional<NowPlayingSnapshot>& snapshot);
  const std::optional<Artwork>& current() const { return current_; }

  // Decodes image bytes into a scaled cover and its tint; none for bytes that are no image.
  static std::optional<Artwork> decode(const QByteArray& bytes);

 signals:
  void changed();

 private:
  void settle(std::optional<Artwork> artwork);
  void decodeAway(QByteArray bytes, std::function<void(std::optional<Artwork>)> then);
  void download(const std::string& url, std::function<void(std::optional<Artwork>)> then);
  void showFromCatalogue(const ArtworkCacheKey& key);
  void lookUp(const ArtworkCacheKey& key);

  ArtworkFetcher& fetcher_;
  Allowed onlineLookup_;
  Clock now_;
  std::uint64_t generation_ = 0;  // changes with every new track or cover
  std::optional<TrackIdentity> track_;
  std::optional<NowPlayingSnapshot::Artwork> cover_;
  std::optional<Artwork> current_;
  LRUCache<ArtworkCacheKey, Artwork> byKey_{cacheCapacity};
  LRUCache<std::string, Artwork> byURL_{cacheCapacity};
  ArtworkMissMemo misses_;
};

}  // namespace tindra
