#include "mpris_commands.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDateTime>
#include <cstdio>

#include "base/dbus/dbus_reply.h"
#include "mpris_session.h"

namespace tindra::MprisCommands {

namespace {

const QString objectPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString playerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
constexpr int callTimeout = 2000;

QVariant property(QDBusConnection& bus, const QString& busName, const QString& name) {
  QDBusMessage call = QDBusMessage::createMethodCall(busName, objectPath, propertiesInterface,
                                                     QStringLiteral("Get"));
  call << playerInterface << name;
  return dbus::variantArgument(bus.call(call, QDBus::Block, callTimeout));
}

// A one-shot run has no history: a playing player wins, else one with a track.
std::optional<MprisPlayerState> currentPlayer(QDBusConnection& bus) {
  QList<MprisPlayerState> players;
  for (const QString& name : bus.interface()->registeredServiceNames().value()) {
    if (!name.startsWith(QLatin1String("org.mpris.MediaPlayer2."))) continue;
    MprisPlayerState player;
    player.busName = name;
    player.playbackStatus = property(bus, name, QStringLiteral("PlaybackStatus")).toString();
    const QVariant metadata = property(bus, name, QStringLiteral("Metadata"));
    if (metadata.userType() == qMetaTypeId<QDBusArgument>()) {
      metadata.value<QDBusArgument>() >> player.metadata;
    }
    players << player;
  }
  return MprisSession::choose(players);
}

int call(QDBusConnection& bus, const QString& busName, const QString& interface,
         const QString& method, const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createMethodCall(busName, objectPath, interface, method);
  message.setArguments(arguments);
  const QDBusMessage reply = bus.call(message, QDBus::Block, callTimeout);
  if (reply.type() == QDBusMessage::ReplyMessage) return 0;
  std::fprintf(stderr, "tindra-mpris-adapter: %s %s: %s\n", qPrintable(busName), qPrintable(method),
               qPrintable(reply.errorMessage()));
  return playerRefused;
}

int setProperty(QDBusConnection& bus, const QString& busName, const QString& name,
                const QVariant& value) {
  return call(bus, busName, propertiesInterface, QStringLiteral("Set"),
              {playerInterface, name, QVariant::fromValue(QDBusVariant(value))});
}

}  // namespace

int selfTest(QDBusConnection bus) {
  if (!bus.isConnected()) return noSessionBus;
  const auto names = bus.interface()->registeredServiceNames();
  return names.isValid() ? 0 : busDoesNotAnswer;
}

int run(QDBusConnection bus, const QStringList& words) {
  static const QHash<qlonglong, QString> sendMethods{{0, QStringLiteral("Play")},
                                                     {1, QStringLiteral("Pause")},
                                                     {2, QStringLiteral("PlayPause")},
                                                     {4, QStringLiteral("Next")},
                                                     {5, QStringLiteral("Previous")}};
  bool ok = false;
  const qlonglong number = words.size() == 2 ? words[1].toLongLong(&ok) : 0;
  const QString verb = words.value(0);
  const bool mode = verb == QLatin1String("shuffle") || verb == QLatin1String("repeat");
  const bool valid = ok && ((verb == QLatin1String("send") && sendMethods.contains(number)) ||
                            (verb == QLatin1String("seek") && number >= 0) ||
                            (mode && number >= 1 && number <= 3));
  if (!valid) return badArguments;
  if (!bus.isConnected()) return noSessionBus;
  const std::optional<MprisPlayerState> player = currentPlayer(bus);
  if (!player) return noPlayer;
  const QString& name = player->busName;
  if (verb == QLatin1String("send")) {
    return call(bus, name, playerInterface, sendMethods.value(number), {});
  }
  if (verb == QLatin1String("seek")) {
    const QString track = player->trackKey();
    if (!track.startsWith(u'/')) {  // no track id: a relative seek from where it is
      const qlonglong from = property(bus, name, QStringLiteral("Position")).toLongLong();
      return call(bus, name, playerInterface, QStringLiteral("Seek"), {number - from});
    }
    return call(bus, name, playerInterface, QStringLiteral("SetPosition"),
                {QVariant::fromValue(QDBusObjectPath(track)), number});
  }
  if (verb == QLatin1String("shuffle")) {
    return setProperty(bus, name, QStringLiteral("Shuffle"), number != 1);
  }
  static const QStringList loops{QStringLiteral("None"), QStringLiteral("Track"),
                                 QStringLiteral("Playlist")};
  return setProperty(bus, name, QStringLiteral("LoopStatus"), loops[number - 1]);
}

}  // namespace tindra::MprisCommands
