#include "hud/hud_state.h"

#include <gtest/gtest.h>

#include <limits>

#include "hud/hud_bar_motion.h"
#include "hud/hud_bar_style.h"
#include "hud/hud_display_duration.h"
#include "hud/hud_tint.h"

namespace tindra {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(HUDState, ClampsTheLevel) {
  EXPECT_EQ(HUDState(HUDKind::volume, 1.7).level(), 1.0);
  EXPECT_EQ(HUDState(HUDKind::volume, nan).level(), 0.0);
  EXPECT_EQ(HUDState(HUDKind::volume, inf).level(), 0.0);
  EXPECT_EQ(HUDState(HUDKind::volume, -0.1).level(), 0.0);
  EXPECT_NE(HUDState(HUDKind::brightness, 0.25), HUDState(HUDKind::brightness, 0.25, false, true));
}

TEST(HUDState, MutedVolumeShowsEmpty) {
  const HUDState muted(HUDKind::volume, 0.8, true);
  EXPECT_EQ(muted.displayedLevel(), 0.0);
  EXPECT_EQ(muted.percent(), 0);
  EXPECT_EQ(muted.symbolName(), "speaker.slash.fill");
  const HUDState silent(HUDKind::volume, 0.0);
  EXPECT_EQ(silent.percent(), 0);
  EXPECT_EQ(silent.symbolName(), "speaker.slash.fill");
  // Mute means nothing for the other kinds.
  EXPECT_EQ(HUDState(HUDKind::brightness, 0.8, true).displayedLevel(), 0.8);
}

TEST(HUDState, PercentRoundsHalfAwayFromZero) {
  EXPECT_EQ(HUDState(HUDKind::volume, 0.125).percent(), 13);  // 12.5
  EXPECT_EQ(HUDState(HUDKind::volume, 0.124).percent(), 12);
  EXPECT_EQ(HUDState(HUDKind::volume, 1.0).percent(), 100);
}

TEST(HUDState, SymbolThresholds) {
  auto volume = [](double level) { return HUDState(HUDKind::volume, level).symbolName(); };
  EXPECT_EQ(volume(0.01), "speaker.wave.1.fill");
  EXPECT_EQ(volume(0.33), "speaker.wave.1.fill");
  EXPECT_EQ(volume(1.0 / 3), "speaker.wave.2.fill");
  EXPECT_EQ(volume(0.66), "speaker.wave.2.fill");
  EXPECT_EQ(volume(2.0 / 3), "speaker.wave.3.fill");
  auto brightness = [](double level, bool external) {
    return HUDState(HUDKind::brightness, level, false, external).symbolName();
  };
  EXPECT_EQ(brightness(0.49, false), "sun.min.fill");
  EXPECT_EQ(brightness(0.5, false), "sun.max.fill");
  EXPECT_EQ(brightness(0.9, true), "display");
  EXPECT_EQ(HUDState(HUDKind::keyboardBacklight, 0.49).symbolName(), "light.min");
  EXPECT_EQ(HUDState(HUDKind::keyboardBacklight, 0.5).symbolName(), "light.max");
}

TEST(HUDBarStyle, LitSegments) {
  EXPECT_EQ(litSegments(0.0), 0);
  EXPECT_EQ(litSegments(1.0 / 32), 1);  // 0.5 of a segment rounds up
  EXPECT_EQ(litSegments(0.03), 0);
  EXPECT_EQ(litSegments(1.0), 16);
  EXPECT_EQ(litSegments(2.0), 16);
  EXPECT_EQ(litSegments(inf), 0);
}

TEST(HUDTint, LevelColorFollowsTheThreeStops) {
  EXPECT_EQ(levelColor(0), (HUDColor{0.4, 0.72, 1.0}));
  EXPECT_EQ(levelColor(0.5), (HUDColor{0.52, 0.9, 0.6}));
  EXPECT_EQ(levelColor(1), (HUDColor{1.0, 0.58, 0.3}));
  EXPECT_EQ(levelColor(7), levelColor(1));
  EXPECT_EQ(levelColor(nan), levelColor(0));
  const HUDColor quarter = levelColor(0.25);
  EXPECT_DOUBLE_EQ(quarter.red, 0.46);
  EXPECT_DOUBLE_EQ(quarter.green, 0.81);
  EXPECT_DOUBLE_EQ(quarter.blue, 0.8);
  const HUDColor threeQuarters = levelColor(0.75);
  EXPECT_DOUBLE_EQ(threeQuarters.red, 0.76);
  EXPECT_DOUBLE_EQ(threeQuarters.green, 0.74);
  EXPECT_DOUBLE_EQ(threeQuarters.blue, 0.45);
}

TEST(HUDBarMotion, GlidesOnlyForQuickSuccession) {
  EXPECT_EQ(HUDBarMotion::forInterval(0.01), HUDBarMotion::glide(0.03));
  EXPECT_EQ(HUDBarMotion::forInterval(0.2999), HUDBarMotion::glide(0.2999));
  for (double settles : {0.3, 0.0, -0.1, nan, inf}) {
    EXPECT_EQ(HUDBarMotion::forInterval(settles), HUDBarMotion::settle()) << settles;
  }
  EXPECT_EQ(HUDBarMotion::forInterval(std::nullopt), HUDBarMotion::settle());
}

TEST(HUDDisplayDuration, ClampsAndFallsBack) {
  EXPECT_EQ(HUDDisplayDuration::clamped(0.2), 0.8);
  EXPECT_EQ(HUDDisplayDuration::clamped(0.8), 0.8);
  EXPECT_EQ(HUDDisplayDuration::clamped(10), 4.0);
  EXPECT_EQ(HUDDisplayDuration::clamped(nan), 1.5);
  EXPECT_EQ(HUDDisplayDuration::clamped(inf), 1.5);
}

}  // namespace
}  // namespace tindra
