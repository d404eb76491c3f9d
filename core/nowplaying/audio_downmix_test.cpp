#include "nowplaying/audio_downmix.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "nowplaying/audio_tap_target_selector.h"
#include "nowplaying/silence_detector.h"

namespace tindra {
namespace {

TEST(AudioDownmixTest, InterleavedAndPlanarMixAlikeAndCleanGlitches) {
  const std::vector<float> interleaved{1, -1, 0.5f, 0.25f, 0, NAN, 0.9f};  // 3 frames + 1
  std::vector<float> mono(8, 7.0f);
  const auto mixed = AudioDownmix::interleaved(interleaved, 2, mono);
  EXPECT_EQ(mixed.frames, 3u);
  EXPECT_FLOAT_EQ(mixed.peak, 1.0f);
  EXPECT_EQ((std::vector<float>(mono.begin(), mono.begin() + 4)),
            (std::vector<float>{0, 0.375f, 0, 7}));

  const std::vector<float> left{1, 0.5f, 0, 2}, right{-1, 0.25f, INFINITY};
  const std::vector<std::span<const float>> channels{left, right};
  std::vector<float> planarMono(8, 7.0f);
  const auto planar = AudioDownmix::planar(channels, planarMono);
  EXPECT_EQ(planar.frames, 3u) << "the shortest channel bounds the frames";
  EXPECT_FLOAT_EQ(planar.peak, 1.0f);
  EXPECT_EQ(std::vector<float>(planarMono.begin(), planarMono.begin() + 3),
            std::vector<float>(mono.begin(), mono.begin() + 3));

  std::vector<float> small(1);
  EXPECT_EQ(AudioDownmix::interleaved(interleaved, 1, small).frames, 1u);
  EXPECT_EQ(AudioDownmix::interleaved(interleaved, 0, mono).frames, 0u);
  EXPECT_EQ(AudioDownmix::planar({}, mono).frames, 0u);
}

TEST(SilenceDetectorTest, QuietMustLastTheRequiredDuration) {
  SilenceDetector detector;
  EXPECT_FALSE(detector.update(0.0005f, 10));
  EXPECT_FALSE(detector.update(0.0f, 11.9));
  EXPECT_TRUE(detector.update(0.0f, 12));
  EXPECT_FALSE(detector.update(SilenceDetector::defaultThreshold, 12.5))
      << "the threshold is sound";
  EXPECT_FALSE(detector.update(0.0f, 13));
  EXPECT_FALSE(detector.update(NAN, 20));
  EXPECT_FALSE(detector.update(0.0f, 21));
}

TEST(AudioTapTargetSelectorTest, TheAppAndItsHelpersPreferringThoseThatSound) {
  const std::vector<AudioProcessInfo> processes{
      {1, 100, "com.google.Chrome", false},         {2, 101, "com.google.Chrome.helper", true},
      {3, 102, "com.google.ChromeCanary", true},    {4, 103, std::nullopt, true},
      {5, 104, "com.spotify.client.helper", false},
  };
  EXPECT_EQ(AudioTapTargetSelector::targets(processes, "com.google.Chrome", std::nullopt),
            std::vector<std::uint32_t>{2});
  EXPECT_EQ(AudioTapTargetSelector::targets(processes, "com.example.web", "com.spotify.client"),
            std::vector<std::uint32_t>{5})
      << "the parent app counts, and a silent match beats nothing";
  EXPECT_TRUE(AudioTapTargetSelector::targets(processes, std::nullopt, std::nullopt).empty());
  EXPECT_TRUE(AudioTapTargetSelector::targets(processes, "", std::nullopt).empty());
}

}  // namespace
}  // namespace tindra
