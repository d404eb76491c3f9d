// NowPlayingSource: where snapshots of the playing track come from, and where transport commands
// go. Snapshots arrive on the main thread, in order; an absent one means nothing is playing.
#pragma once

#include <QObject>
#include <optional>

#include "nowplaying/now_playing_command.h"
#include "nowplaying/now_playing_snapshot.h"
#include "nowplaying/now_playing_source_kind.h"

namespace tindra {

class NowPlayingSource : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual NowPlayingSourceKind kind() const = 0;
  virtual void start() = 0;
  // Final: no snapshot and no restart follows.
  virtual void stop() = 0;
  virtual void send(const NowPlayingCommand& command) = 0;

 signals:
  void snapshotArrived(const std::optional<tindra::NowPlayingSnapshot>& snapshot);
  // The source keeps failing and should be tested again.
  void repeatedFailure();
};

}  // namespace tindra
