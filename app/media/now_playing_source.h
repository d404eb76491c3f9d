// NowPlayingSource: where snapshots of the playing track come from, and where transport commands
// go. Snapshots arrive on the main thread, in order; an absent one means nothing is playing.
// NowPlayingSource::Null is the do-nothing source of a desktop without players to follow.
#pragma once

#include <optional>

#include "base/backend.h"
#include "nowplaying/now_playing_command.h"
#include "nowplaying/now_playing_snapshot.h"
#include "nowplaying/now_playing_source_kind.h"

namespace tindra {

class NowPlayingSource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  class Null;

  virtual NowPlayingSourceKind kind() const = 0;
  // Final: no snapshot and no restart follows.
  virtual void stop() = 0;
  virtual void send(const NowPlayingCommand& command) = 0;

 signals:
  void snapshotArrived(const std::optional<tindra::NowPlayingSnapshot>& snapshot);
  // The source keeps failing and should be tested again.
  void repeatedFailure();
};

class NowPlayingSource::Null final : public NullBackend<NowPlayingSource> {
 public:
  using NullBackend::NullBackend;
  NowPlayingSourceKind kind() const override { return NowPlayingSourceKind::adapter; }
  void stop() override {}
  void send(const NowPlayingCommand&) override {}
};

}  // namespace tindra
