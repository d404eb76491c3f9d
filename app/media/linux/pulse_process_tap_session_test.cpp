// Runs in: private-session --offscreen --sound-server
#include "media/linux/pulse_process_tap_session.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "media/process_tap_spectrum.h"
#include "testing/picture_checks.h"
#include "testing/skip_or_fail_on_ci.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

using Stream = PulseProcessTapSession::PlaybackStream;

TEST(PulseStreamChoiceTest, ThePlayersOwnProcessFirstThenItsProgram) {
  const std::vector<Stream> streams{
      {1, 0, 100, "mpv", "", false},          // another mpv
      {2, 0, 200, "mpv", "", true},           // the player, paused on this stream
      {3, 0, 200, "mpv", "", false},          // the player
      {4, 0, 300, "firefox-esr", "", false},  // a browser's audio helper
      {5, 0, 400, "paplay", "", false},
  };
  EXPECT_EQ(PulseProcessTapSession::choose(streams, {200, "mpv", ""})->index, 3u);
  EXPECT_EQ(PulseProcessTapSession::choose(streams, {999, "org.mozilla.firefox", ""})->index, 4u);
  EXPECT_EQ(PulseProcessTapSession::choose(streams, {std::nullopt, "", "firefox"})->index, 4u);
  EXPECT_FALSE(PulseProcessTapSession::choose(streams, {999, "spotify", ""}));
  EXPECT_FALSE(PulseProcessTapSession::choose(streams, {std::nullopt, "", ""}));
}

// Tones through a private PulseAudio: the player at 1 kHz, another program at 150 Hz.
class PulseProcessTapSessionTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<QTemporaryDir>();
    for (const auto& [name, synth] : {std::pair{"high.wav", "sine 1000"},
                                      {"low.wav", "sine 150"},
                                      {"quiet.wav", "sine 1000 vol 0"}}) {
      QStringList arguments{"-n", "-r", "48000", "-c", "2", folder_->filePath(name), "synth", "30"};
      arguments += QString(synth).split(' ');
      QProcess::execute("sox", arguments);
    }
  }
  static void TearDownTestSuite() { folder_.reset(); }
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("TINDRA_SOUND_SERVER")) {
      SKIP_OR_FAIL_ON_CI("no private sound server (scripts/private-session --sound-server)");
    }
  }
  void TearDown() override {
    for (auto& player : players_) {
      player->kill();
      player->waitForFinished(3000);
    }
  }

  QProcess& play(const char* file) {
    auto& player = players_.emplace_back(std::make_unique<QProcess>());
    player->start("mpv", {"--no-config", "--ao=pulse", "--vo=null", "--really-quiet", "--loop",
                          folder_->filePath(file)});
    player->waitForStarted();
    return *player;
  }
  static QString captureStreams() {
    QProcess pactl;
    pactl.start("pactl", {"list", "short", "source-outputs"});
    pactl.waitForFinished(3000);
    return QString::fromUtf8(pactl.readAllStandardOutput()).trimmed();
  }
  static int barOf(double frequency, double rate) {
    const auto bins = SpectrumAnalyzer::bandBins(SpectrumFeed::configuration(6, rate));
    const int bin = static_cast<int>(frequency / (rate / 1024));
    return static_cast<int>(std::ranges::find_if(bins, [bin](auto r) { return bin < r.hi; }) -
                            bins.begin());
  }

  static inline std::unique_ptr<QTemporaryDir> folder_;
  std::vector<std::unique_ptr<QProcess>> players_;
};

TEST_F(PulseProcessTapSessionTest, HearsOnlyThePlayerAndStopsWithIt) {
  QProcess& player = play("high.wav");
  play("low.wav");
  auto owned = std::make_unique<PulseProcessTapSession>(std::make_shared<PulseConnection>());
  QSignalSpy started(owned.get(), &ProcessTapSession::started);
  ProcessTapSpectrum spectrum(std::move(owned), 6);
  spectrum.setEnabled(true);
  spectrum.viewShown(true);
  spectrum.setTarget(SpectrumTarget{player.processId(), "mpv", ""}, true);
  // The player's stream appears a moment after it starts; the capture follows it there.
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        return !started.isEmpty() &&
               started.back().at(1).toString().contains("the player's own stream");
      },
      8000));
  const double rate = started.back().at(0).toDouble();
  ASSERT_TRUE(QTest::qWaitFor([&] { return spectrum.levels()[barOf(1000, rate)] > 0.6f; }, 3000));
  QTest::qWait(300);
  EXPECT_LT(spectrum.levels()[barOf(150, rate)], 0.25f) << "the other program's tone came through";
  EXPECT_LT(spectrum.levels()[5], 0.25f);
  EXPECT_FALSE(captureStreams().isEmpty());

  // Drawn: the bar of the player's tone stands tallest. TINDRA_SCREENSHOTS keeps the picture.
  const QImage picture =
      viewShot(QUrl("data:text/plain,import Tindra%0A"
                    "SpectrumBars { property var model; spectrum: model; color: \"%23ff375f\" }"),
               &spectrum, {150, 60}, "live-spectrum-1khz");
  ASSERT_FALSE(picture.isNull());
  const auto barHeight = [&](int bar) {
    const int x = static_cast<int>((bar + 0.5) * (picture.width() + 2) / 6.0);
    return countPixels(picture, hueOf("#ff375f"), {x, 0, 1, picture.height()});
  };
  EXPECT_GT(barHeight(barOf(1000, rate)), 2 * barHeight(barOf(150, rate)));

  spectrum.setTarget(SpectrumTarget{player.processId(), "mpv", ""}, false);  // paused
  EXPECT_EQ(spectrum.state(), ProcessTapSpectrum::State::off);
  ASSERT_TRUE(QTest::qWaitFor([] { return captureStreams().isEmpty(); }, 1000));
}

TEST_F(PulseProcessTapSessionTest, SilenceFromThePlayerRestsTheBars) {
  QProcess& player = play("quiet.wav");
  ProcessTapSpectrum spectrum(
      std::make_unique<PulseProcessTapSession>(std::make_shared<PulseConnection>()), 6);
  spectrum.setEnabled(true);
  spectrum.viewShown(true);
  spectrum.setTarget(SpectrumTarget{player.processId(), "mpv", ""}, true);
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return spectrum.state() == ProcessTapSpectrum::State::silent; }, 8000))
      << spectrum.stateName().toStdString();
  EXPECT_FALSE(captureStreams().isEmpty());  // still listening, for the sound to return
}

}  // namespace
}  // namespace tindra
