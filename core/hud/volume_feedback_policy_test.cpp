#include "hud/volume_feedback_policy.h"

#include <gtest/gtest.h>

#include <limits>

#include "hud/brightness_yield_policy.h"
#include "hud/volume_yield_policy.h"

namespace tindra {
namespace {

const KeyModifiers none;
const KeyModifiers shift = KeyModifiers::shift();

TEST(VolumeFeedbackPolicy, SystemSettingFromStoredValues) {
  using P = VolumeFeedbackPolicy;
  EXPECT_EQ(P::systemSetting(JSONValue()), std::nullopt);
  EXPECT_EQ(P::systemSetting(true), true);
  EXPECT_EQ(P::systemSetting(false), false);
  EXPECT_EQ(P::systemSetting(1), true);
  EXPECT_EQ(P::systemSetting(0), false);
  EXPECT_EQ(P::systemSetting(-0.0), false);
  EXPECT_EQ(P::systemSetting(0.5), true);
  EXPECT_EQ(P::systemSetting(std::numeric_limits<double>::quiet_NaN()), true);
  EXPECT_EQ(P::systemSetting(" YES\n"), true);
  EXPECT_EQ(P::systemSetting("\tTrue "), true);
  EXPECT_EQ(P::systemSetting("1"), true);
  EXPECT_EQ(P::systemSetting("No"), false);
  EXPECT_EQ(P::systemSetting(" 0 "), false);
  EXPECT_EQ(P::systemSetting("FALSE"), false);
  for (const char* unknown : {"", "  ", "2", "on", "y", "t rue", "01"}) {
    EXPECT_EQ(P::systemSetting(unknown), std::nullopt) << unknown;
  }
  EXPECT_EQ(P::systemSetting(JSONValue::Array{JSONValue(true)}), std::nullopt);
  EXPECT_EQ(P::systemSetting(JSONValue::Object{}), std::nullopt);
}

TEST(VolumeFeedbackPolicy, ShiftInvertsThePreference) {
  const VolumeAction raise = VolumeAction::up(false);
  const VolumeState half{0.5, false};
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(raise, half, true, false, shift, false));
  EXPECT_TRUE(VolumeFeedbackPolicy::shouldPlay(raise, half, true, false, none, false));
  EXPECT_TRUE(VolumeFeedbackPolicy::shouldPlay(raise, half, std::nullopt, false, shift, false));
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(raise, half, std::nullopt, false, none, false));
  EXPECT_TRUE(VolumeFeedbackPolicy::shouldPlay(raise, half, std::nullopt, true, none, false));
  // A present preference wins over the fallback.
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(raise, half, false, true, none, false));
}

TEST(VolumeFeedbackPolicy, SilentWhenYieldedMutedEmptyOrToggling) {
  const VolumeAction lower = VolumeAction::down(true);
  EXPECT_TRUE(VolumeFeedbackPolicy::shouldPlay(lower, {0.01, false}, true, false, none, false));
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(lower, {0.5, false}, true, false, none, true));
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(lower, {0.5, true}, true, false, none, false));
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(lower, {0.0, false}, true, false, none, false));
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(
      lower, {std::numeric_limits<double>::quiet_NaN(), false}, true, false, none, false));
  // Shift does not turn these on.
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(lower, {0.0, false}, false, false, shift, false));
  EXPECT_FALSE(VolumeFeedbackPolicy::shouldPlay(VolumeAction::toggleMute(), {0.5, false}, true,
                                                false, none, false));
}

TEST(VolumeYieldPolicy, BetterDisplayTakesDisplaySpeakers) {
  using T = AudioTransport;
  EXPECT_TRUE(VolumeYieldPolicy::shouldYield(T::hdmi, true, true));
  EXPECT_TRUE(VolumeYieldPolicy::shouldYield(T::displayPort, true, true));
  EXPECT_FALSE(VolumeYieldPolicy::shouldYield(T::hdmi, true, false));
  EXPECT_FALSE(VolumeYieldPolicy::shouldYield(T::builtIn, true, true));
  EXPECT_FALSE(VolumeYieldPolicy::shouldYield(T::other, true, true));  // no device known
  EXPECT_TRUE(VolumeYieldPolicy::shouldYield(T::builtIn, false, false));
  EXPECT_TRUE(VolumeYieldPolicy::shouldYield(T::hdmi, false, true));
}

TEST(BrightnessYieldPolicy, BetterDisplayMakesBrightnessUnavailable) {
  using A = BrightnessAccess;
  for (A access : {A::readWrite, A::readOnly, A::unavailable}) {
    EXPECT_EQ(BrightnessYieldPolicy::effectiveAccess(access, true), A::unavailable);
    EXPECT_EQ(BrightnessYieldPolicy::effectiveAccess(access, false), access);
  }
}

}  // namespace
}  // namespace tindra
