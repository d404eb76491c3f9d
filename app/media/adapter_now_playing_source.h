// AdapterNowPlayingSource: the now-playing source that runs the platform's adapter (see
// AdapterLaunch): a long-lived stream child whose snapshots it passes on, restarted with
// back-off when it dies, and a short-lived run for each transport command. After five quick
// failures in a row it asks its owner to test the adapter again.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <memory>

#include "media/adapter_stream_process.h"
#include "media/now_playing_source.h"
#include "nowplaying/adapter_launch.h"
#include "nowplaying/restart_backoff.h"

namespace tindra {

class AdapterNowPlayingSource final : public NowPlayingSource {
  Q_OBJECT

 public:
  using Clock = std::function<double()>;  // seconds; only differences matter
  static constexpr long long debounceMilliseconds = 100;

  explicit AdapterNowPlayingSource(AdapterLaunch launch,
                                   RestartBackoff backoff = RestartBackoff::streamSource(),
                                   QObject* parent = nullptr);
  ~AdapterNowPlayingSource() override;

  NowPlayingSourceKind kind() const override { return NowPlayingSourceKind::adapter; }
  void start() override;
  void stop() override;
  void send(const NowPlayingCommand& command) override;

  bool isActive() const { return active_; }
  bool isFinished() const { return finished_; }
  // The delay of the pending restart, if one is pending.
  std::optional<int> pendingRestartMilliseconds() const;

 private:
  void launchStream();
  void onExited(int exitStatus);

  AdapterLaunch launch_;
  std::unique_ptr<AdapterStreamProcess> child_;
  QElapsedTimer childStartedAt_;
  RestartBackoff backoff_;
  QTimer restartTimer_;
  bool active_ = false;
  bool finished_ = false;
};

}  // namespace tindra
