#include "media/process_tap_spectrum.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <algorithm>

#include "media/fake_process_tap_session.h"

namespace tindra {
namespace {

const SpectrumTarget player{4242, "mpv", ""};

// Which of six bars holds `frequency` at 48 kHz.
int barOf(double frequency) {
  const auto bins = SpectrumAnalyzer::bandBins(SpectrumFeed::configuration(6, 48'000));
  const int bin = static_cast<int>(frequency / (48'000.0 / 1024));
  const auto band = std::ranges::find_if(bins, [bin](auto range) { return bin < range.hi; });
  return static_cast<int>(band - bins.begin());
}

TEST(ProcessTapSpectrumTest, CapturesOnlyWhileOnPlayingAndShown) {
  auto owned = std::make_unique<FakeProcessTapSession>();
  FakeProcessTapSession& session = *owned;
  ProcessTapSpectrum spectrum(std::move(owned), 6);
  spectrum.setTarget(player, true);
  spectrum.viewShown(true);
  EXPECT_FALSE(session.running);  // the setting is off
  spectrum.setEnabled(true);
  ASSERT_TRUE(session.running);
  EXPECT_EQ(session.target(), player);
  EXPECT_EQ(spectrum.state(), ProcessTapSpectrum::State::off);  // until the capture runs

  emit session.started(48'000, "a tone");
  EXPECT_EQ(spectrum.state(), ProcessTapSpectrum::State::running);
  QSignalSpy frames(&spectrum, &ProcessTapSpectrum::levelsChanged);
  session.play(1000, 0.1);
  ASSERT_TRUE(frames.wait(200));
  const auto levels = spectrum.levels();
  EXPECT_GT(levels[barOf(1000)], 0.8f);
  EXPECT_LT(levels[barOf(100)], 0.3f);
  EXPECT_LT(levels[5], 0.3f);

  // Held notes do not redraw: unchanged bars make no frame.
  QTest::qWait(150);
  frames.clear();
  QTest::qWait(150);
  EXPECT_EQ(frames.count(), 0);

  spectrum.viewShown(false);  // the notch opened, or another activity covers the ear
  EXPECT_FALSE(session.running);
  EXPECT_EQ(spectrum.state(), ProcessTapSpectrum::State::off);
  EXPECT_TRUE(std::ranges::all_of(spectrum.levels(), [](float level) { return level == 0; }));
  spectrum.viewShown(true);
  EXPECT_TRUE(session.running);
  spectrum.setTarget(player, false);  // paused
  EXPECT_FALSE(session.running);
}

TEST(ProcessTapSpectrumTest, SilenceRestsTheBarsUntilSoundReturns) {
  auto owned = std::make_unique<FakeProcessTapSession>();
  FakeProcessTapSession& session = *owned;
  ProcessTapSpectrum spectrum(std::move(owned), 6);
  spectrum.setEnabled(true);
  spectrum.viewShown(true);
  spectrum.setTarget(player, true);
  emit session.started(48'000, "a tone");
  session.play(1000, 0.05, 0.0f);  // the detector starts timing the quiet here
  QSignalSpy states(&spectrum, &ProcessTapSpectrum::stateChanged);
  QTest::qWait(static_cast<int>(SilenceDetector::defaultRequiredDuration * 1000) + 100);
  session.play(1000, 0.05, 0.0f);
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return spectrum.state() == ProcessTapSpectrum::State::silent; }));
  session.play(1000, 0.05);
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return spectrum.state() == ProcessTapSpectrum::State::running; }));
}

TEST(ProcessTapSpectrumTest, WithoutACaptureThePseudoBarsMove) {
  ProcessTapSpectrum none(nullptr, 6);
  none.setEnabled(true);
  none.viewShown(true);
  none.setTarget(player, true);
  EXPECT_EQ(none.state(), ProcessTapSpectrum::State::unavailable);
  QSignalSpy frames(&none, &ProcessTapSpectrum::levelsChanged);
  ASSERT_TRUE(frames.wait(500));
  EXPECT_GT(*std::ranges::max_element(none.levels()), 0.0f);

  auto owned = std::make_unique<FakeProcessTapSession>();
  FakeProcessTapSession& session = *owned;
  ProcessTapSpectrum refused(std::move(owned), 6);
  refused.setEnabled(true);
  refused.viewShown(true);
  refused.setTarget(player, true);
  emit session.unavailable("no sound server");
  EXPECT_EQ(refused.state(), ProcessTapSpectrum::State::unavailable);
  emit session.started(44'100, "the server came back");
  EXPECT_EQ(refused.state(), ProcessTapSpectrum::State::running);
}

}  // namespace
}  // namespace tindra
