// FakeNowPlayingSource: an invented track for the demo, screenshots and tests, chosen only when
// TINDRA_FAKE names "media". It answers commands the way a player would (play and pause, next,
// seek) and remembers them for tests.
#pragma once

#include <vector>

#include "media/now_playing_source.h"

namespace tindra {

class FakeNowPlayingSource final : public NowPlayingSource {
  Q_OBJECT

 public:
  using Clock = std::function<double()>;  // seconds since 1970

  explicit FakeNowPlayingSource(Clock now = nullptr, QObject* parent = nullptr);

  NowPlayingSourceKind kind() const override { return NowPlayingSourceKind::adapter; }
  // Reports the first invented track, playing.
  void start() override;
  void stop() override { stopped_ = true; }
  void send(const NowPlayingCommand& command) override;

  // Reports `snapshot` as the player's new state.
  void report(const std::optional<NowPlayingSnapshot>& snapshot);
  const std::vector<NowPlayingCommand>& commands() const { return commands_; }
  // An invented track: "Invented Track N" by "Tindra Demo".
  static NowPlayingSnapshot track(int number, double now);

 private:
  Clock now_;
  std::optional<NowPlayingSnapshot> current_;
  std::vector<NowPlayingCommand> commands_;
  int number_ = 1;
  bool stopped_ = false;
};

}  // namespace tindra
