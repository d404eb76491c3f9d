#include "media/now_playing_provider.h"
#include "base/backend_selection.h"
#include "media/adapter_now_playing_source.h"
#include "media/fake_now_playing_source.h"
#include "media/media_compact.h"
#include "media/network_artwork_fetcher.h"
#include "media/offline_artwork_fetcher.h"
#include "media/platform_adapter_launch.h"

#include <QDateTime>

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "nowplaying/now_playing_activity_policy.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {

namespace {

SpectrumTarget spectrumTarget(const NowPlayingSnapshot& snapshot) {
  return {snapshot.processIdentifier,
          QString::fromStdString(snapshot.bundleIdentifier.value_or(std::string())),
          QString::fromStdString(snapshot.parentBundleIdentifier.value_or(std::string()))};
}

}  // namespace

NowPlayingProvider::NowPlayingProvider(ProviderContext context, SourceFactory makeSource,
                                       std::unique_ptr<AdapterProbe> probe,
                                       std::unique_ptr<ArtworkFetcher> fetcher,
                                       std::unique_ptr<ProcessTapSession> tap, QObject* parent)
    : Provider(context, id, parent),
      makeSource_(std::move(makeSource)),
      probe_(std::move(probe)),
      fetcher_(std::move(fetcher)),
      artwork_(
          *fetcher_, [this] { return settings().read(settings::artworkOnlineLookup); },
          [] { return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0; }),
      spectrum_(std::move(tap), spectrumBands),
      viewModel_([this](const NowPlayingCommand& command) { send(command); }, nullptr, &spectrum_) {
  spectrum_.setEnabled(settings().read(settings::liveWaveform));
  spectrumSetting_ = settings().observe(settings::liveWaveform,
                                        [this](bool enabled) { spectrum_.setEnabled(enabled); });
  if (probe_) connect(probe_.get(), &AdapterProbe::finished, this, &NowPlayingProvider::onProbed);
  connect(&artwork_, &ArtworkService::changed, this, &NowPlayingProvider::showCover);
  // The bar of the track on screen takes a new tint choice at once, not at the next cover.
  tintSetting_ = settings().observe(settings::nowPlayingProgressTint,
                                    [this](NowPlayingProgressTint) { showCover(); });
}

void NowPlayingProvider::showCover() {
  const auto& artwork = artwork_.current();
  const bool tinted =
      settings().read(settings::nowPlayingProgressTint) == NowPlayingProgressTint::artwork;
  QColor bar;
  if (artwork && artwork->tint && tinted) {
    bar = QColor::fromRgbF(static_cast<float>(artwork->tint->red),
                           static_cast<float>(artwork->tint->green),
                           static_cast<float>(artwork->tint->blue));
  }
  viewModel_.setCover(artwork ? artwork->image : QImage(), bar);
}

NowPlayingProvider::~NowPlayingProvider() = default;

NowPlayingSourceMode NowPlayingProvider::sourceMode() const {
  return settings().read(settings::nowPlayingSourceMode);
}

NowPlayingPausedLinger NowPlayingProvider::pausedLinger() const {
  return settings().read(settings::nowPlayingPausedLinger);
}

void NowPlayingProvider::start() {
  if (sourceMode() == NowPlayingSourceMode::appleScriptOnly) {
    diagnostics().record(lcNowPlaying(), name(), DiagnosticsLog::Outcome::degraded,
                         Sentence(QT_TR_NOOP("Settings ask for the player scripts, which this "
                                             "desktop does not have: nothing is shown as playing."),
                                  tr));
    return;
  }
  if (probe_) {
    diagnostics().record(lcNowPlaying(), name(), DiagnosticsLog::Outcome::ok,
                         Sentence(QT_TR_NOOP("testing the now-playing adapter %1"), tr)
                             .arg(QString::fromStdString(probe_->launch().program)));
    probe_->run();
  } else {
    startSource();
  }
}

void NowPlayingProvider::onProbed(const AdapterProbeResult& result, const Sentence& text) {
  const bool passed = result == AdapterProbeResult::passed();
  diagnostics().record(lcNowPlaying(), name(),
                       passed ? DiagnosticsLog::Outcome::ok : DiagnosticsLog::Outcome::failed,
                       text);
  if (passed && !source_) startSource();
  if (!passed) dropSource();
}

void NowPlayingProvider::startSource() {
  source_ = makeSource_();
  connect(source_.get(), &NowPlayingSource::snapshotArrived, this, &NowPlayingProvider::show);
  followCheck(lcNowPlaying(), *source_);
  connect(source_.get(), &NowPlayingSource::repeatedFailure, this, [this] {
    if (probe_) probe_->run();  // keeps the source if the adapter still passes
  });
  source_->start();
}

void NowPlayingProvider::dropSource() {
  if (!source_) return;
  source_->stop();
  source_.reset();
  show(std::nullopt);
}

void NowPlayingProvider::show(const std::optional<NowPlayingSnapshot>& snapshot) {
  const std::optional<ActivityEvent> event =
      NowPlayingActivityPolicy::event(snapshot, wasPlaying_, pausedLinger());
  wasPlaying_ = snapshot && snapshot->isPlaying;
  if (snapshot && (!viewModel_.snapshot() || viewModel_.snapshot()->title != snapshot->title)) {
    qCDebug(lcNowPlaying).noquote() << "now playing:" << QString::fromStdString(snapshot->title);
  }
  recordPlayer(snapshot);
  viewModel_.setSnapshot(snapshot);
  artwork_.show(snapshot);
  spectrum_.setTarget(snapshot ? std::optional(spectrumTarget(*snapshot)) : std::nullopt,
                      snapshot && snapshot->isPlaying);
  if (event) activities().offer(*event);
}

void NowPlayingProvider::recordPlayer(const std::optional<NowPlayingSnapshot>& snapshot) {
  std::optional<QString> player;
  if (snapshot) player = QString::fromStdString(snapshot->bundleIdentifier.value_or(""));
  if (player == player_) return;
  const QString& named = player ? *player : *player_;
  const Sentence who = named.isEmpty() ? Sentence(QT_TR_NOOP("a player without a name"), tr)
                                       : Sentence::verbatim(named);
  diagnostics().record(lcNowPlaying(), name(), DiagnosticsLog::Outcome::ok,
                       player ? Sentence(QT_TR_NOOP("following %1"), tr).arg(who)
                              : Sentence(QT_TR_NOOP("%1 left: nothing is playing"), tr).arg(who));
  player_ = player;
}

void NowPlayingProvider::swiped(SwipeDirection direction) {
  if (!settings().read(settings::swipeChangesTrack)) return;
  if (direction == SwipeDirection::left) send(NowPlayingCommand::nextTrack());
  if (direction == SwipeDirection::right) send(NowPlayingCommand::previousTrack());
}

void NowPlayingProvider::send(const NowPlayingCommand& command) {
  if (!source_ || !viewModel_.snapshot() || !viewModel_.snapshot()->capabilities.allows(command)) {
    return;
  }
  source_->send(command);
}

std::unique_ptr<NowPlayingProvider> NowPlayingProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  if (fakeBackendRequested(id)) {
    // Nothing to test and nothing to download: covers and bars are invented too.
    return std::make_unique<NowPlayingProvider>(
        context,
        [&shared] {
          auto fake = std::make_unique<FakeNowPlayingSource>();
          shared.remember(*fake);
          return fake;
        },
        nullptr, std::make_unique<OfflineArtworkFetcher>());
  }
  const AdapterLaunch launch = platformAdapterLaunch();
  return std::make_unique<NowPlayingProvider>(
      context, [launch] { return std::make_unique<AdapterNowPlayingSource>(launch); },
      std::make_unique<AdapterProbe>(launch), std::make_unique<NetworkArtworkFetcher>(),
      ProcessTapSession::forPlatform(shared));
}

ProviderViews NowPlayingProvider::views() {
  return {.compact = {{.kind = ActivityKind::nowPlaying,
                       .make = ProviderViews::painted<MediaCompact, NowPlayingViewModel>()}},
          .sections = {{.name = QStringLiteral("media"),
                        .title = QT_TRANSLATE_NOOP("PinnedSectionsEditor", "Now Playing"),
                        .rank = 20,
                        .file = QStringLiteral("media/MediaPanel.qml")}}};
}

}  // namespace tindra
