#include "mpris_session.h"

#include <QDBusConnectionInterface>
#include <QDBusVariant>
#include <QTimer>
#include <cmath>
#include <cstdio>

#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString prefix = QStringLiteral("org.mpris.MediaPlayer2.");
const QString objectPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString rootInterface = QStringLiteral("org.mpris.MediaPlayer2");
const QString playerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
constexpr int callTimeout = 2000;  // a hung player must not hold the others' news back

void complain(const QString& busName, const QString& what) {
  std::fprintf(stderr, "tindra-mpris-adapter: %s: %s\n", qPrintable(busName), qPrintable(what));
}

// D-Bus variants arrive wrapped once more inside a{sv} maps.
QVariant unwrapped(const QVariant& value) {
  return value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
}

// Where the player's Can* property `name` is kept; nullptr for any other property.
bool* controlNamed(MprisPlayerState::Controls& controls, const QString& name) {
  if (name == QLatin1String("CanControl")) return &controls.control;
  if (name == QLatin1String("CanPlay")) return &controls.play;
  if (name == QLatin1String("CanPause")) return &controls.pause;
  if (name == QLatin1String("CanGoNext")) return &controls.next;
  if (name == QLatin1String("CanGoPrevious")) return &controls.previous;
  if (name == QLatin1String("CanSeek")) return &controls.seek;
  return nullptr;
}

}  // namespace

MprisSession::MprisSession(QDBusConnection bus, Clock now, QObject* parent)
    : QObject(parent), bus_(std::move(bus)), now_(std::move(now)) {}

void MprisSession::start() {
  bus_.connect(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
               QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameOwnerChanged"), this,
               SLOT(onNameOwnerChanged(QString, QString, QString)));
  bus_.connect(QString(), objectPath, propertiesInterface, QStringLiteral("PropertiesChanged"),
               this, SLOT(onPropertiesChanged(QString, QVariantMap, QStringList, QDBusMessage)));
  bus_.connect(QString(), objectPath, playerInterface, QStringLiteral("Seeked"), this,
               SLOT(onSeeked(qlonglong, QDBusMessage)));
  const QStringList names = bus_.interface()->registeredServiceNames().value();
  for (const QString& name : names) {
    if (name.startsWith(prefix)) addPlayer(name, bus_.interface()->serviceOwner(name).value());
  }
}

std::optional<MprisPlayerState> MprisSession::chosen() const {
  return choose(players_.values());
}

std::optional<MprisPlayerState> MprisSession::choose(const QList<MprisPlayerState>& players) {
  const MprisPlayerState* best = nullptr;
  for (const MprisPlayerState& player : players) {
    if (!player.hasTrack()) continue;
    if (best == nullptr) {
      best = &player;
    } else if (player.isPlaying() != best->isPlaying()) {
      if (player.isPlaying()) best = &player;
    } else if (player.isPlaying() ? player.startedPlayingMicros > best->startedPlayingMicros
                                  : player.lastActiveMicros > best->lastActiveMicros) {
      best = &player;
    }
  }
  return best ? std::optional(*best) : std::nullopt;
}

void MprisSession::onNameOwnerChanged(const QString& name, const QString& oldOwner,
                                      const QString& newOwner) {
  if (!name.startsWith(prefix)) return;
  if (!oldOwner.isEmpty()) removePlayer(name);
  if (!newOwner.isEmpty()) addPlayer(name, newOwner);
}

void MprisSession::addPlayer(const QString& busName, const QString& owner) {
  MprisPlayerState player;
  player.busName = busName;
  player.lastActiveMicros = now_();
  players_.insert(busName, player);
  owners_.insert(owner, busName);
  readAll(busName);
  readProcess(busName);
}

// The player's process, for the app's live spectrum to find the player's own audio stream.
void MprisSession::readProcess(const QString& busName) {
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetConnectionUnixProcessID"));
  call << busName;
  whenAnswered(bus_.asyncCall(call, callTimeout), this,
               [this, busName](const QDBusMessage& answer) {
                 auto player = players_.find(busName);
                 const std::optional<uint> process = dbus::argument<uint>(answer);
                 if (player == players_.end() || !process) return;
                 player->processIdentifier = *process;
                 emit changed();
               });
}

void MprisSession::removePlayer(const QString& busName) {
  if (!players_.remove(busName)) return;
  for (auto it = owners_.begin(); it != owners_.end();) {
    it = it.value() == busName ? owners_.erase(it) : std::next(it);
  }
  emit changed();
}

void MprisSession::readAll(const QString& busName) {
  for (const QString& interface : {rootInterface, playerInterface}) {
    QDBusMessage call = QDBusMessage::createMethodCall(busName, objectPath, propertiesInterface,
                                                       QStringLiteral("GetAll"));
    call << interface;
    whenAnswered(bus_.asyncCall(call, callTimeout), this,
                 [this, busName, interface](const QDBusMessage& answer) {
                   auto player = players_.find(busName);
                   if (player == players_.end()) return;
                   const std::optional<QVariantMap> properties =
                       dbus::argument<QVariantMap>(answer);
                   if (!properties) {
                     complain(busName, answer.errorMessage());
                     return;
                   }
                   if (interface == rootInterface) {
                     player->desktopEntry =
                         unwrapped(properties->value(QStringLiteral("DesktopEntry"))).toString();
                     emit changed();
                     return;
                   }
                   apply(*player, *properties);
                   readPosition(busName);
                   emit changed();
                 });
  }
}

void MprisSession::readPosition(const QString& busName, bool retry) {
  QDBusMessage call = QDBusMessage::createMethodCall(busName, objectPath, propertiesInterface,
                                                     QStringLiteral("Get"));
  call << playerInterface << QStringLiteral("Position");
  whenAnswered(bus_.asyncCall(call, callTimeout), this,
               [this, busName, retry](const QDBusMessage& answer) {
                 auto player = players_.find(busName);
                 if (player == players_.end()) return;
                 const bool refused = answer.type() == QDBusMessage::ErrorMessage;
                 // A player still loading the next track may refuse once; ask again a moment
                 // later.
                 if (refused && retry) {
                   QTimer::singleShot(positionRetryMilliseconds, this,
                                      [this, busName] { readPosition(busName, false); });
                   return;
                 }
                 bool ok = false;
                 const qlonglong micros = dbus::variantArgument(answer).toLongLong(&ok);
                 // Players without a position (some browsers) answer with an error or nonsense.
                 player->positionMicros = ok && micros >= 0 ? std::optional(micros) : std::nullopt;
                 player->sampledAtMicros = now_();
                 emit changed();
               });
}

bool MprisSession::apply(MprisPlayerState& player, const QVariantMap& properties) {
  // Some players never change their track id: the title counts too.
  const QString oldTrack = player.trackKey() + player.text(QStringLiteral("xesam:title"));
  const QString oldStatus = player.playbackStatus;
  const double oldRate = player.rate;
  for (auto it = properties.begin(); it != properties.end(); ++it) {
    const QVariant value = unwrapped(it.value());
    if (it.key() == QLatin1String("PlaybackStatus")) {
      player.playbackStatus = value.toString();
    } else if (it.key() == QLatin1String("Metadata")) {
      const QDBusArgument argument = value.value<QDBusArgument>();
      QVariantMap metadata;
      if (value.userType() == qMetaTypeId<QDBusArgument>()) {
        argument >> metadata;
      } else {
        metadata = value.toMap();
      }
      player.metadata.clear();
      for (auto entry = metadata.begin(); entry != metadata.end(); ++entry) {
        player.metadata.insert(entry.key(), unwrapped(entry.value()));
      }
    } else if (it.key() == QLatin1String("Rate")) {
      bool ok = false;
      const double rate = value.toDouble(&ok);
      if (ok && std::isfinite(rate)) player.rate = rate;
    } else if (it.key() == QLatin1String("Shuffle") && value.userType() == QMetaType::Bool) {
      player.shuffle = value.toBool();
    } else if (it.key() == QLatin1String("LoopStatus")) {
      player.loopStatus = value.toString();
    } else if (bool* control = controlNamed(player.controls, it.key());
               control != nullptr && value.userType() == QMetaType::Bool) {
      *control = value.toBool();
    }
  }
  player.lastActiveMicros = now_();
  if (player.isPlaying() && oldStatus != player.playbackStatus) {
    player.startedPlayingMicros = player.lastActiveMicros;
  }
  return oldTrack != player.trackKey() + player.text(QStringLiteral("xesam:title")) ||
         oldStatus != player.playbackStatus || oldRate != player.rate;
}

MprisPlayerState* MprisSession::byOwner(const QString& owner) {
  const auto name = owners_.find(owner);
  if (name == owners_.end()) return nullptr;
  const auto player = players_.find(name.value());
  return player == players_.end() ? nullptr : &player.value();
}

void MprisSession::onPropertiesChanged(const QString& interface, const QVariantMap& changed,
                                       const QStringList& invalidated,
                                       const QDBusMessage& message) {
  MprisPlayerState* player = byOwner(message.service());
  if (player == nullptr || interface != playerInterface) return;
  if (!invalidated.isEmpty()) {
    readAll(player->busName);  // a value changed without being sent
    return;
  }
  const bool moved = apply(*player, changed);
  if (moved) readPosition(player->busName);
  emit this->changed();
}

void MprisSession::onSeeked(qlonglong position, const QDBusMessage& message) {
  MprisPlayerState* player = byOwner(message.service());
  if (player == nullptr) return;
  player->positionMicros = position >= 0 ? std::optional<std::int64_t>(position) : std::nullopt;
  player->sampledAtMicros = now_();
  player->lastActiveMicros = player->sampledAtMicros;
  emit changed();
}

}  // namespace tindra
