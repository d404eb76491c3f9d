#include "media/artwork_service.h"

#include <QBuffer>
#include <QImageReader>
#include <span>

#include "base/logging_categories.h"
#include "base/run_off_thread.h"
#include "nowplaying/accent_color_policy.h"
#include "nowplaying/artwork_url_policy.h"
#include "nowplaying/itunes_artwork_search.h"

namespace tindra {

ArtworkService::ArtworkService(ArtworkFetcher& fetcher, Allowed onlineLookup, Clock now,
                               QObject* parent)
    : QObject(parent),
      fetcher_(fetcher),
      onlineLookup_(std::move(onlineLookup)),
      now_(std::move(now)) {}

namespace {

// Covers are PNG or JPEG nearly always. Named, the format is read by its own reader alone:
// guessing would load every image plug-in there is to ask each (SVG's library among them),
// and keep them loaded.
const char* coverFormat(const QByteArray& bytes) {
  if (bytes.startsWith("\x89PNG\r\n\x1a\n")) return "png";
  if (bytes.startsWith("\xff\xd8\xff")) return "jpeg";
  return nullptr;
}

}  // namespace

std::optional<ArtworkService::Artwork> ArtworkService::decode(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  const char* format = coverFormat(bytes);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(format == nullptr);
  // A JPEG is decoded straight to the smaller size, without the whole picture in between.
  if (const QSize size = reader.size();
      size.isValid() && (size.width() > maxSide || size.height() > maxSide)) {
    reader.setScaledSize(size.scaled(maxSide, maxSide, Qt::KeepAspectRatio));
    reader.setQuality(100);  // the smooth scaling, not the fast one
  }
  const QImage image = reader.read();
  if (image.isNull()) return std::nullopt;
  // The tint is judged on a small copy: the dominant colour does not need every pixel.
  const QImage sample = image.scaled(32, 32, Qt::KeepAspectRatio, Qt::FastTransformation)
                            .convertToFormat(QImage::Format_RGBA8888);
  const std::span<const std::uint8_t> rgba(sample.constBits(),
                                           static_cast<std::size_t>(sample.sizeInBytes()));
  return Artwork{image, AccentColorPolicy::accentColor(rgba, barBackground)};
}

void ArtworkService::show(const std::optional<NowPlayingSnapshot>& snapshot) {
  std::optional<TrackIdentity> track =
      snapshot ? std::optional(snapshot->identity()) : std::nullopt;
  std::optional<NowPlayingSnapshot::Artwork> cover = snapshot ? snapshot->artwork : std::nullopt;
  if (track == track_ && cover == cover_) return;
  track_ = std::move(track);
  cover_ = std::move(cover);
  const std::uint64_t generation = ++generation_;
  const auto then = [this, generation](std::optional<Artwork> artwork) {
    if (generation == generation_) settle(std::move(artwork));  // else the track moved on
  };
  if (!snapshot) {
    settle(std::nullopt);
  } else if (const auto bytes = cover_ ? cover_->embeddedBytes() : std::nullopt) {
    decodeAway(QByteArray(reinterpret_cast<const char*>(bytes->data()),
                          static_cast<qsizetype>(bytes->size())),
               then);
  } else if (const std::string* url = cover_ ? cover_->remoteURL() : nullptr;
             url != nullptr && ArtworkURLPolicy::downloadURL(*url)) {
    // A cover that does not arrive leaves the catalogue to find one, as if none was given.
    download(*url, [this, generation,
                    key = ArtworkCacheKey::forSnapshot(*snapshot)](std::optional<Artwork> artwork) {
      if (generation != generation_) return;
      if (artwork || !key) {
        settle(std::move(artwork));
      } else {
        showFromCatalogue(*key);
      }
    });
  } else if (const auto key = ArtworkCacheKey::forSnapshot(*snapshot)) {
    // No cover, or one on a host that is never contacted: the catalogue is asked instead.
    showFromCatalogue(*key);
  } else {
    settle(std::nullopt);
  }
}

void ArtworkService::showFromCatalogue(const ArtworkCacheKey& key) {
  if (const Artwork* known = byKey_.find(key)) {
    settle(*known);
  } else {
    settle(std::nullopt);  // nothing while the catalogue is asked
    lookUp(key);
  }
}

void ArtworkService::settle(std::optional<Artwork> artwork) {
  current_ = std::move(artwork);
  emit changed();
}

void ArtworkService::decodeAway(QByteArray bytes,
                                std::function<void(std::optional<Artwork>)> then) {
  runOffThread(
      this, [bytes = std::move(bytes)] { return decode(bytes); }, std::move(then));
}

void ArtworkService::download(const std::string& url,
                              std::function<void(std::optional<Artwork>)> then) {
  // Only the catalogue hosts: a player must not make Tindra contact any server it names.
  const std::optional<std::string> address = ArtworkURLPolicy::downloadURL(url);
  if (!address) {
    then(std::nullopt);
    return;
  }
  if (const Artwork* known = byURL_.find(*address)) {
    then(*known);
    return;
  }
  fetcher_.fetch(QUrl(QString::fromStdString(*address)), maxCoverBytes,
                 [this, address = *address, then = std::move(then)](std::optional<QByteArray> bytes,
                                                                    const QString& problem) {
                   if (!bytes) {
                     qCInfo(lcArtwork).noquote() << "cover not downloaded:" << problem;
                     then(std::nullopt);
                     return;
                   }
                   decodeAway(*std::move(bytes), [this, address, then](auto artwork) {
                     if (artwork) byURL_.insert(address, *artwork);
                     then(std::move(artwork));
                   });
                 });
}

void ArtworkService::lookUp(const ArtworkCacheKey& key) {
  const std::optional<std::string> search =
      ITunesArtworkSearch::requestIfAllowed(key, onlineLookup_(), misses_, now_());
  if (!search) return;
  const std::uint64_t generation = generation_;
  fetcher_.fetch(QUrl(QString::fromStdString(*search)), ITunesArtworkSearch::maxResponseBytes,
                 [this, key, generation](std::optional<QByteArray> response, const QString&) {
                   const std::optional<std::string> url =
                       response ? ITunesArtworkSearch::artworkURL(response->toStdString(), key)
                                : std::nullopt;
                   if (!url) {
                     misses_.recordMiss(key, now_());
                     return;
                   }
                   download(*url, [this, key, generation](std::optional<Artwork> artwork) {
                     if (!artwork) {
                       misses_.recordMiss(key, now_());
                       return;
                     }
                     byKey_.insert(key, *artwork);
                     if (generation == generation_) settle(std::move(artwork));
                   });
                 });
}

}  // namespace tindra
