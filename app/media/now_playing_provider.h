// NowPlayingProvider ("media"): the playing track. It tests the adapter first and feeds the
// notch from the adapter source only when the test passes (this desktop has no player-script
// source to fall back to, and never pretends to); a source that keeps failing is tested again
// and dropped if the test fails. Each snapshot becomes the `nowPlaying` activity: shown while
// playing, lingering for the user's chosen time after a pause, ended when nothing plays.
#pragma once

#include <functional>
#include <memory>

#include "activity/swipe_recognizer.h"
#include "base/provider.h"
#include "base/provider_views.h"
#include "media/adapter_probe.h"
#include "media/artwork_fetcher.h"
#include "media/artwork_service.h"
#include "media/now_playing_source.h"
#include "media/now_playing_view_model.h"
#include "media/process_tap_spectrum.h"
#include "nowplaying/now_playing_paused_linger.h"
#include "nowplaying/now_playing_source_kind.h"
#include "settings/settings_store.h"

namespace tindra {

class NowPlayingProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "media";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "media").
  static std::unique_ptr<NowPlayingProvider> make(ProviderContext& context);
  static ProviderViews views();

  using SourceFactory = std::function<std::unique_ptr<NowPlayingSource>()>;

  // Without a probe (the fake source) the source starts at once. Covers are downloaded and
  // looked up through `fetcher`; the live spectrum listens through `tap` (none: pseudo bars).
  NowPlayingProvider(ProviderContext context, SourceFactory makeSource,
                     std::unique_ptr<AdapterProbe> probe, std::unique_ptr<ArtworkFetcher> fetcher,
                     std::unique_ptr<ProcessTapSession> tap = nullptr, QObject* parent = nullptr);
  ~NowPlayingProvider() override;

  void start() override;
  NowPlayingViewModel* viewModel() override { return &viewModel_; }

  bool hasSource() const { return source_ != nullptr; }
  // The adapter it tests and runs, for the check on request; none for the invented source.
  const AdapterLaunch* adapter() const { return probe_ ? &probe_->launch() : nullptr; }

  // A sideways swipe on the notch skips tracks when the user wants it: moving the track away to
  // the left brings the next one, to the right the previous one.
  void swiped(SwipeDirection direction);

  // Bars on the right ear.
  static constexpr int spectrumBands = 6;

 private:
  NowPlayingSourceMode sourceMode() const;
  NowPlayingPausedLinger pausedLinger() const;
  void onProbed(const AdapterProbeResult& result, const Sentence& text);
  void startSource();
  void dropSource();
  void show(const std::optional<NowPlayingSnapshot>& snapshot);
  // Says in Diagnostics when the player followed leaves or another one is followed.
  void recordPlayer(const std::optional<NowPlayingSnapshot>& snapshot);
  void send(const NowPlayingCommand& command);
  void showCover();

  SourceFactory makeSource_;
  std::unique_ptr<AdapterProbe> probe_;
  std::unique_ptr<NowPlayingSource> source_;
  std::unique_ptr<ArtworkFetcher> fetcher_;
  ArtworkService artwork_;
  ProcessTapSpectrum spectrum_;
  SettingsObservation spectrumSetting_;
  SettingsObservation tintSetting_;
  NowPlayingViewModel viewModel_;
  bool wasPlaying_ = false;
  // The player whose state is shown, by its desktop entry (empty for one that names none).
  std::optional<QString> player_;
};

}  // namespace tindra
