// MprisSession: every MPRIS player on the session bus, followed by signals, never polled: each
// player's properties are read once when it appears and then kept by PropertiesChanged; the
// position, which MPRIS does not signal, is read when the status, the track or the rate changes
// and on Seeked. A player that leaves the bus hands over to the next. Calls are asynchronous,
// so a hung or dying player never stalls the others.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QHash>
#include <QObject>
#include <functional>
#include <optional>

#include "mpris_player_state.h"

namespace tindra {

class MprisSession : public QObject {
  Q_OBJECT

 public:
  using Clock = std::function<std::int64_t()>;  // microseconds since 1970
  static constexpr int positionRetryMilliseconds = 250;

  MprisSession(QDBusConnection bus, Clock now, QObject* parent = nullptr);

  void start();
  // The player the notch follows: the one that most recently started playing; while none
  // plays, the most recently active; only players that have a track count.
  std::optional<MprisPlayerState> chosen() const;

  static std::optional<MprisPlayerState> choose(const QList<MprisPlayerState>& players);

 signals:
  void changed();

 private slots:
  void onNameOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);
  void onPropertiesChanged(const QString& interface, const QVariantMap& changed,
                           const QStringList& invalidated, const QDBusMessage& message);
  void onSeeked(qlonglong position, const QDBusMessage& message);

 private:
  void addPlayer(const QString& busName, const QString& owner);
  void removePlayer(const QString& busName);
  void readAll(const QString& busName);
  void readProcess(const QString& busName);
  void readPosition(const QString& busName, bool retry = true);
  // Applies player properties; true when the position should be read again.
  bool apply(MprisPlayerState& player, const QVariantMap& properties);
  MprisPlayerState* byOwner(const QString& owner);

  QDBusConnection bus_;
  Clock now_;
  QHash<QString, MprisPlayerState> players_;  // by bus name
  QHash<QString, QString> owners_;            // unique name -> bus name
};

}  // namespace tindra
