#include "hud/volume_feedback_policy.h"

#include <gtest/gtest.h>

#include <limits>

#include "hud/volume_yield_policy.h"

namespace tindra {
namespace {

const KeyModifiers none;
const KeyModifiers shift = KeyModifiers::shift();

TEST(VolumeFeedbackPolicy, SystemSettingFromStoredValues) {
  using P = VolumeFeedbackPolicy;
  for (const JSONValue& on : {JSONValue(true), JSONValue(0.5), JSONValue(" YES\n"),
                              JSONValue("\tTrue "), JSONValue("1")}) {
    EXPECT_EQ(P::systemSetting(on), true);
  }
  for (const JSONValue& off : {JSONValue(false), JSONValue(0), JSONValue(-0.0), JSONValue("No"),
                               JSONValue(" 0 "), JSONValue("FALSE")}) {
    EXPECT_EQ(P::systemSetting(off), false);
  }
  for (const JSONValue& unknown :
       {JSONValue(), JSONValue(""), JSONValue("2"), JSONValue("on"), JSONValue("t rue"),
        JSONValue("01"), JSONValue(JSONValue::Array{true}), JSONValue(JSONValue::Object{})}) {
    EXPECT_EQ(P::systemSetting(unknown), std::nullopt);
  }
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

}  // namespace
}  // namespace tindra
