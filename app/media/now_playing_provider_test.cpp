#include "media/now_playing_provider.h"

#include "base/logging_categories.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include "base/diagnostics_log.h"
#include "media/fake_now_playing_source.h"
#include "media/offline_artwork_fetcher.h"
#include "settings/settings_keys.h"
#include "testing/manual_one_shot_scheduler.h"
#include "testing/provider_test_context.h"

namespace tindra {
namespace {

constexpr double now = 1'800'000'000;

class NowPlayingProviderTest : public ::testing::Test {
 protected:
  // A provider whose self-test is the shell command `probeScript`, or none at all.
  void makeProvider(std::optional<QString> probeScript) {
    std::unique_ptr<AdapterProbe> probe;
    if (probeScript) {
      probe = std::make_unique<AdapterProbe>(
          AdapterLaunch{"/bin/sh", {}, {"-c", probeScript->toStdString()}, {}, ""});
    }
    provider_ = std::make_unique<NowPlayingProvider>(
        context_,
        [this] {
          ++sourcesMade_;
          auto source = std::make_unique<FakeNowPlayingSource>([] { return now; });
          source_ = source.get();
          return source;
        },
        std::move(probe), std::make_unique<OfflineArtworkFetcher>());
  }
  // Starts the provider and waits for its self-test's result (after the line saying it runs).
  void start() {
    provider_->start();
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return context_.diagnostics().entries().size() >= 2; }, 5000));
  }
  DiagnosticsLog::Outcome lastOutcome() const {
    return context_.diagnostics().entries().back().outcome;
  }

  ManualOneShotScheduler* expiry_ = new ManualOneShotScheduler;
  ProviderTestContext context_{[] { return 0.0; }, std::unique_ptr<OneShotScheduler>(expiry_)};
  std::unique_ptr<NowPlayingProvider> provider_;
  FakeNowPlayingSource* source_ = nullptr;
  int sourcesMade_ = 0;
};

TEST_F(NowPlayingProviderTest, PlayingShowsThePausedTrackLingersAndNothingPlayingEnds) {
  ASSERT_TRUE(
      context_.settings().write(settings::nowPlayingPausedLinger, NowPlayingPausedLinger::long_));
  makeProvider(std::nullopt);
  provider_->start();
  EXPECT_EQ(context_.activities().current(), ActivityKind::nowPlaying);
  EXPECT_FALSE(expiry_->isPending());  // shown for as long as it plays
  EXPECT_EQ(provider_->viewModel()->title(), "Invented Track 1");

  QSignalSpy track(provider_->viewModel(), &NowPlayingViewModel::trackChanged);
  QSignalSpy playback(provider_->viewModel(), &NowPlayingViewModel::playbackChanged);
  provider_->viewModel()->togglePlayPause();
  EXPECT_FALSE(provider_->viewModel()->playing());
  EXPECT_EQ(expiry_->aimed(), 30.0);
  EXPECT_EQ(track.count(), 0);
  EXPECT_EQ(playback.count(), 1);

  // A second paused report does not restart the linger.
  NowPlayingSnapshot paused = *provider_->viewModel()->snapshot();
  paused.elapsed = 70;
  expiry_->cancel();
  source_->report(paused);
  EXPECT_FALSE(expiry_->isPending());

  source_->report(std::nullopt);
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  EXPECT_FALSE(provider_->viewModel()->hasTrack());
}

TEST_F(NowPlayingProviderTest, CommandsReachTheSourceOnlyWhenThePlayerCanCarryThemOut) {
  makeProvider(std::nullopt);
  provider_->start();
  NowPlayingSnapshot limited = FakeNowPlayingSource::track(1, now);
  limited.capabilities = NowPlayingCapabilities::playPause();
  source_->report(limited);
  NowPlayingViewModel& view = *provider_->viewModel();
  EXPECT_FALSE(view.canGoNext() || view.canGoPrevious() || view.canSeek());
  EXPECT_TRUE(view.hasControls());
  view.next();
  view.seek(10);
  view.togglePlayPause();
  ASSERT_EQ(source_->commands().size(), 1u);
  EXPECT_EQ(source_->commands()[0], NowPlayingCommand::togglePlayPause());

  // Going back without going on, and then a player that takes nothing at all.
  QSignalSpy faces(&view, &NowPlayingViewModel::trackChanged);
  limited.capabilities = NowPlayingCapabilities::previousTrack();
  source_->report(limited);
  EXPECT_EQ(faces.count(), 1) << "a capability change alone redraws the buttons";
  EXPECT_TRUE(view.canGoPrevious() && !view.canGoNext() && !view.canPlayPause());
  limited.capabilities = {};
  source_->report(limited);
  EXPECT_FALSE(view.hasControls());
  view.togglePlayPause();
  view.previous();
  EXPECT_EQ(source_->commands().size(), 1u);

  source_->report(FakeNowPlayingSource::track(1, now));
  view.cycleRepeat();
  view.cycleShuffle();
  EXPECT_EQ(source_->commands()[1], NowPlayingCommand::setRepeat(RepeatMode::all));
  EXPECT_EQ(source_->commands()[2], NowPlayingCommand::setShuffle(ShuffleMode::tracks));
}

// Diagnostics tells of players, not tracks: a player that leaves, one that comes, one that takes
// over from another, and none of the tracks in between.
TEST_F(NowPlayingProviderTest, DiagnosticsTellWhichPlayerIsFollowedAndWhenItLeaves) {
  makeProvider(std::nullopt);
  provider_->start();
  const auto told = [this] {
    QStringList lines;
    for (const auto& entry : context_.diagnostics().entries()) {
      if (entry.text.english().contains("follow") || entry.text.english().contains("left")) {
        lines << entry.text.english();
      }
    }
    return lines;
  };
  source_->report(std::nullopt);
  const qsizetype before = told().size();
  NowPlayingSnapshot mpv = FakeNowPlayingSource::track(1, now);
  mpv.bundleIdentifier = "mpv";
  source_->report(mpv);
  mpv.title = "Another Track";
  mpv.isPlaying = false;
  source_->report(mpv);
  NowPlayingSnapshot nameless = FakeNowPlayingSource::track(2, now);
  nameless.bundleIdentifier.reset();
  source_->report(nameless);
  source_->report(std::nullopt);
  source_->report(std::nullopt);
  EXPECT_EQ(told().mid(before), (QStringList{"following mpv", "following a player without a name",
                                             "a player without a name left: nothing is playing"}));
}

TEST_F(NowPlayingProviderTest, DraggingTheBarShowsTheKnobThereAndLettingGoSeeks) {
  makeProvider(std::nullopt);
  provider_->start();
  NowPlayingViewModel& view = *provider_->viewModel();
  EXPECT_NEAR(view.displayPosition(), 63, 0.01);  // the invented track's sample
  view.drag(500);                                 // past the end: held at the duration
  EXPECT_DOUBLE_EQ(view.displayPosition(), 214);
  EXPECT_EQ(view.millisecondsToNextSecond(), -1);  // nothing ticks while dragging
  view.drag(120.5);
  view.commitDrag();
  ASSERT_FALSE(source_->commands().empty());
  EXPECT_EQ(source_->commands().back(), NowPlayingCommand::seek(120.5));
  // The fake player confirms the seek; the knob stays where it was let go.
  EXPECT_NEAR(view.displayPosition(), 120.5, 0.01);
}

TEST_F(NowPlayingProviderTest, TheSourceRunsOnlyWhileTheAdapterPassesItsSelfTest) {
  const QString flag = context_.filePath("broken");
  makeProvider(QStringLiteral("[ -e '%1' ] && exit 3; exit 0").arg(flag));
  start();
  ASSERT_EQ(sourcesMade_, 1);
  // The test's result, the source's own check, then the player it follows.
  ASSERT_EQ(context_.diagnostics().entries().size(), 4);
  EXPECT_EQ(context_.diagnostics().entries()[1].outcome, DiagnosticsLog::Outcome::ok);
  EXPECT_TRUE(context_.diagnostics().entries()[2].text.english().contains("invented track"));
  EXPECT_EQ(context_.diagnostics().entries()[3].text.english(), "following tindra-demo");
  EXPECT_EQ(context_.activities().current(), ActivityKind::nowPlaying);

  // Repeated failures bring a retest; passing keeps the source, failing drops it.
  emit source_->repeatedFailure();
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return context_.diagnostics().entries().size() == 5; }, 5000));
  EXPECT_TRUE(provider_->hasSource());
  QFile(flag).open(QIODevice::WriteOnly);
  emit source_->repeatedFailure();
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return context_.diagnostics().entries().size() == 7; }, 5000));
  EXPECT_EQ(context_.diagnostics().entries()[5].outcome, DiagnosticsLog::Outcome::failed);
  EXPECT_TRUE(context_.diagnostics().entries()[5].text.english().contains("exit status 3"));
  EXPECT_EQ(context_.diagnostics().entries()[6].text.english(),
            "tindra-demo left: nothing is playing");
  EXPECT_FALSE(provider_->hasSource());
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  EXPECT_EQ(sourcesMade_, 1);
}

TEST_F(NowPlayingProviderTest, NoSourceIsStartedWhenTheTestFailsOrSettingsAskForScripts) {
  makeProvider(QStringLiteral("exit 1"));
  start();
  EXPECT_EQ(lastOutcome(), DiagnosticsLog::Outcome::failed);
  EXPECT_EQ(sourcesMade_, 0);

  context_.diagnostics().record(lcNowPlaying(), "test", DiagnosticsLog::Outcome::ok,
                                Sentence::verbatim("separator"));
  ASSERT_TRUE(context_.settings().write(settings::nowPlayingSourceMode,
                                        NowPlayingSourceMode::appleScriptOnly));
  makeProvider(QStringLiteral("exit 0"));
  provider_->start();
  EXPECT_EQ(lastOutcome(), DiagnosticsLog::Outcome::degraded);
  EXPECT_TRUE(context_.diagnostics().entries().back().text.english().contains("player scripts"));
  QTest::qWait(100);
  EXPECT_EQ(sourcesMade_, 0);
}

}  // namespace
}  // namespace tindra
