#include "mpris_player_state.h"

#include <QDBusObjectPath>
#include <QRegularExpression>

#include "nowplaying/now_playing_capabilities.h"

namespace tindra {

QString MprisPlayerState::text(const QString& key) const {
  const QVariant value = metadata.value(key);
  // Only a string is a text: a player that sends a number or a list here answers nonsense.
  return value.userType() == QMetaType::QString ? value.toString() : QString();
}

bool MprisPlayerState::hasTrack() const {
  return !text(QStringLiteral("xesam:title")).trimmed().isEmpty();
}

QString MprisPlayerState::trackKey() const {
  const QVariant id = metadata.value(QStringLiteral("mpris:trackid"));
  QString key =
      id.canConvert<QDBusObjectPath>() ? id.value<QDBusObjectPath>().path() : id.toString();
  if (key.isEmpty()) key = metadata.value(QStringLiteral("xesam:url")).toString();
  return key;
}

QString MprisPlayerState::bundleIdentifier() const {
  if (!desktopEntry.isEmpty()) return desktopEntry;
  QString name = busName.section(u'.', 3);  // after "org.mpris.MediaPlayer2."
  static const QRegularExpression instance(QStringLiteral("\\.instance_?\\d+(_\\d+)?$"));
  name.remove(instance);
  return name;
}

std::int64_t MprisPlayerState::capabilities() const {
  using C = NowPlayingCapabilities;
  if (!controls.control) return 0;
  std::int64_t bits = 0;
  if (controls.play || controls.pause) bits |= C::playPauseBit;
  if (controls.next) bits |= C::nextTrackBit;
  if (controls.previous) bits |= C::previousTrackBit;
  if (controls.seek) bits |= C::seekBit;
  if (shuffle) bits |= C::shuffleBit;
  if (!loopStatus.isEmpty()) bits |= C::repeatBit;
  return bits;
}

}  // namespace tindra
