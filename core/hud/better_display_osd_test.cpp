#include "hud/better_display_osd.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace tindra {
namespace {

using Result = BetterDisplayOSD::Result;

std::optional<Result> parse(std::string_view payload) {
  return BetterDisplayOSD::parse(payload);
}

TEST(BetterDisplayOSD, ControlTargets) {
  for (const char* brightness :
       {"combinedBrightness", "hardwareBrightness", "softwareBrightness"}) {
    const std::string payload =
        std::string(R"({"controlTarget":")") + brightness + R"(","value":0.25})";
    EXPECT_EQ(parse(payload), (Result{HUDKind::brightness, 0.25, false})) << brightness;
  }
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":30,"maxValue":100})"),
            (Result{HUDKind::volume, 0.3, false}));
  EXPECT_EQ(parse(R"({"controlTarget":"mute"})"), (Result{HUDKind::volume, 0, true}));
  EXPECT_EQ(parse(R"({"controlTarget":"mute","value":0.5})"), (Result{HUDKind::volume, 0.5, true}));
  EXPECT_EQ(parse(R"({"controlTarget":"contrast","value":0.5})"), std::nullopt);
  // A target that names nothing we show does not fall back to the icon.
  EXPECT_EQ(parse(R"({"controlTarget":"Volume","systemIconID":3,"value":1})"), std::nullopt);
  // A target that is not a string is ignored and the icon decides.
  EXPECT_EQ(parse(R"({"controlTarget":7,"systemIconID":1,"value":1})"),
            (Result{HUDKind::brightness, 1, false}));
}

TEST(BetterDisplayOSD, IconIDsWhenThereIsNoTarget) {
  EXPECT_EQ(parse(R"({"systemIconID":1,"value":0.5})"), (Result{HUDKind::brightness, 0.5, false}));
  EXPECT_EQ(parse(R"({"systemIconID":3.0,"value":0.5})"), (Result{HUDKind::volume, 0.5, false}));
  EXPECT_EQ(parse(R"({"systemIconID":4})"), (Result{HUDKind::volume, 0, true}));
  for (const char* other :
       {R"({"systemIconID":2,"value":0.5})", R"({"systemIconID":3.5,"value":0.5})",
        R"({"systemIconID":"3","value":0.5})", R"({"value":0.5})"}) {
    EXPECT_EQ(parse(other), std::nullopt) << other;
  }
}

TEST(BetterDisplayOSD, LevelFromValueAndMaximum) {
  // A maximum of 0 falls back to 1, and 30 then clamps to 1.
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":30,"maxValue":0})"),
            (Result{HUDKind::volume, 1, false}));
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":30,"maxValue":-60})"),
            (Result{HUDKind::volume, 1, false}));
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":3,"maxValue":"60"})"),
            (Result{HUDKind::volume, 1, false}));
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":-3})"), (Result{HUDKind::volume, 0, false}));
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":60,"maxValue":60})"),
            (Result{HUDKind::volume, 1, false}));
  // An overflowing quotient is not a level.
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":1e300,"maxValue":1e-300})"),
            (Result{HUDKind::volume, 0, false}));
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":-0.0})")->level, 0.0);
  EXPECT_FALSE(std::signbit(parse(R"({"controlTarget":"volume","value":-0.0})")->level));
  // No usable value: only a mute is still shown.
  EXPECT_EQ(parse(R"({"controlTarget":"volume"})"), std::nullopt);
  EXPECT_EQ(parse(R"({"controlTarget":"volume","value":"0.5"})"), std::nullopt);
  EXPECT_EQ(parse(R"({"controlTarget":"mute","value":null})"), (Result{HUDKind::volume, 0, true}));
}

TEST(BetterDisplayOSD, SizeBoundAndNonObjects) {
  const std::string body = R"({"controlTarget":"volume","value":0.5})";
  std::string exact = body;
  exact.insert(1, BetterDisplayOSD::maxPayloadBytes - body.size(), ' ');
  ASSERT_EQ(exact.size(), BetterDisplayOSD::maxPayloadBytes);
  EXPECT_EQ(parse(exact), (Result{HUDKind::volume, 0.5, false}));
  EXPECT_EQ(parse(exact + " "), std::nullopt);
  for (const char* bad : {"", "[]", "null", "\"volume\"", "{", R"({"controlTarget":"volume",})",
                          R"({"controlTarget":"mute"} x)"}) {
    EXPECT_EQ(parse(bad), std::nullopt) << bad;
  }
}

}  // namespace
}  // namespace tindra
