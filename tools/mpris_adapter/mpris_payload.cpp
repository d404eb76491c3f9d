#include "mpris_payload.h"

#include <QByteArray>
#include <QUrl>
#include <cmath>
#include <span>

#include "base/base64.h"
#include "base/data_url.h"
#include "nowplaying/now_playing_snapshot.h"

namespace tindra::MprisPayload {

namespace {

void putText(JSONValue::Object& payload, const char* key, const QString& text) {
  const QString trimmed = text.trimmed();
  if (!trimmed.isEmpty()) payload.insert_or_assign(key, trimmed.left(4096).toStdString());
}

// xesam:artist is a list of strings; some players send one string, and anything else is none.
QString artists(const QVariant& value) {
  if (value.userType() == QMetaType::QString) return value.toString();
  if (value.userType() != QMetaType::QStringList) return {};
  return value.toStringList().join(QStringLiteral(", "));
}

// Microsecond times within the seven days any source may report; whole numbers only.
std::optional<double> micros(const QVariant& value) {
  switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
      break;
    default:
      return std::nullopt;
  }
  bool ok = false;
  const qlonglong number = value.toLongLong(&ok);
  if (!ok || number < 0 || number > NowPlayingSnapshot::maxSeconds * 1e6) return std::nullopt;
  return static_cast<double>(number);
}

bool isWebAddress(const QString& address) {
  if (address.size() > static_cast<qsizetype>(maxCoverAddressLength)) return false;
  const QUrl url(address, QUrl::StrictMode);
  const QString scheme = url.scheme().toLower();
  return url.isValid() && !url.host().isEmpty() &&
         (scheme == QLatin1String("https") || scheme == QLatin1String("http"));
}

}  // namespace

std::optional<std::string> coverBytes(const QString& artUrl, const ReadFile& readFile) {
  if (artUrl.startsWith(QLatin1String("data:"), Qt::CaseInsensitive)) {
    return decodeDataURL(artUrl.toStdString(), maxCoverBytes);
  }
  const QUrl url(artUrl);
  if (url.isLocalFile()) return readFile(url.toLocalFile(), maxCoverBytes);
  return std::nullopt;
}

JSONValue::Object make(const std::optional<MprisPlayerState>& player, bool includeArtwork,
                       const ReadFile& readFile) {
  JSONValue::Object payload;
  if (!player || !player->hasTrack()) return payload;
  const QVariantMap& metadata = player->metadata;
  putText(payload, "title", player->text(QStringLiteral("xesam:title")));
  putText(payload, "artist", artists(metadata.value(QStringLiteral("xesam:artist"))));
  putText(payload, "album", player->text(QStringLiteral("xesam:album")));
  putText(payload, "bundleIdentifier", player->bundleIdentifier());
  if (player->processIdentifier) {
    payload.insert_or_assign("processIdentifier", static_cast<double>(*player->processIdentifier));
  }
  payload.insert_or_assign("playing", player->isPlaying());
  if (std::isfinite(player->rate) && player->rate >= 0) {
    payload.insert_or_assign("playbackRate", player->rate);
  }
  if (const auto length = micros(metadata.value(QStringLiteral("mpris:length")));
      length && *length > 0) {
    payload.insert_or_assign("durationMicros", *length);
  }
  if (player->positionMicros) {
    if (const auto position = micros(QVariant::fromValue(*player->positionMicros))) {
      payload.insert_or_assign("elapsedTimeMicros", *position);
      payload.insert_or_assign("timestampEpochMicros",
                               static_cast<double>(player->sampledAtMicros));
    }
  }
  if (player->shuffle) payload.insert_or_assign("shuffleMode", *player->shuffle ? 3.0 : 1.0);
  if (player->loopStatus == QLatin1String("None")) payload.insert_or_assign("repeatMode", 1.0);
  if (player->loopStatus == QLatin1String("Track")) payload.insert_or_assign("repeatMode", 2.0);
  if (player->loopStatus == QLatin1String("Playlist")) payload.insert_or_assign("repeatMode", 3.0);
  payload.insert_or_assign("capabilities", static_cast<double>(player->capabilities()));
  if (includeArtwork) {
    const QString artUrl = player->text(QStringLiteral("mpris:artUrl"));
    if (const auto bytes = coverBytes(artUrl, readFile)) {
      const auto* data = reinterpret_cast<const std::uint8_t*>(bytes->data());
      payload.insert_or_assign("artworkData", encodeBase64(std::span(data, bytes->size())));
    } else if (isWebAddress(artUrl)) {
      // Not fetched here: the app decides which hosts it may contact.
      payload.insert_or_assign("artworkURL", artUrl.toStdString());
    }
  }
  return payload;
}

}  // namespace tindra::MprisPayload
