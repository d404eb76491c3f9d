#include "hud/keyboard_backlight_policy.h"

#include <gtest/gtest.h>

#include <limits>

#include "hud/keyboard_backlight_write_monitor.h"

namespace tindra {
namespace {

using Verdict = KeyboardBacklightWriteMonitor::Verdict;

TEST(KeyboardBacklightPolicy, ReadingsNearOneAreCappedOthersRejected) {
  EXPECT_EQ(KeyboardBacklightPolicy::level(1.0008f), 1.0);
  EXPECT_EQ(KeyboardBacklightPolicy::level(1.0f), 1.0);
  EXPECT_EQ(KeyboardBacklightPolicy::level(0.25f), 0.25);
  EXPECT_EQ(KeyboardBacklightPolicy::level(1.01f), std::nullopt);
  // 1.001 as a float lies just above 1.001.
  EXPECT_EQ(KeyboardBacklightPolicy::level(1.001f), std::nullopt);
  EXPECT_EQ(KeyboardBacklightPolicy::level(std::numeric_limits<float>::quiet_NaN()), std::nullopt);
  EXPECT_EQ(KeyboardBacklightPolicy::level(std::numeric_limits<float>::infinity()), std::nullopt);
  EXPECT_EQ(KeyboardBacklightPolicy::level(-std::numeric_limits<float>::infinity()), std::nullopt);
}

TEST(KeyboardBacklightWriteMonitor, VerdictThresholds) {
  using M = KeyboardBacklightWriteMonitor;
  EXPECT_EQ(M::verdict(0.5, 0.503, 0.9), Verdict::inconclusive);  // request too small to judge
  EXPECT_EQ(M::verdict(0.5, 0.5625, 0.57), Verdict::effective);
  EXPECT_EQ(M::verdict(0.5, 0.5625, 0.502), Verdict::noEffect);
  EXPECT_EQ(M::verdict(0.5, 0.5625, 0.3), Verdict::inconclusive);
  // The limits themselves: a request of exactly 1/128 is judged; a read-back exactly 0.04 from
  // the request is effective; exactly 0.004 from the old level is no effect.
  EXPECT_EQ(M::verdict(0.5, 0.5 + 1.0 / 128, 0.5 + 1.0 / 128), Verdict::effective);
  EXPECT_EQ(M::verdict(0.5, 0.5 + 1.0 / 256, 0.5 + 1.0 / 256), Verdict::inconclusive);
  EXPECT_EQ(M::verdict(0.0, 0.5, 0.46), Verdict::effective);
  EXPECT_EQ(M::verdict(0.0, 0.5, 0.45), Verdict::inconclusive);
  EXPECT_EQ(M::verdict(0.0, 0.0625, 0.004), Verdict::noEffect);
  EXPECT_EQ(M::verdict(0.0, 0.0625, 0.005), Verdict::inconclusive);
  // Effective is checked first: a tiny step both reached and barely moving counts as effective.
  EXPECT_EQ(M::verdict(0.5, 0.51, 0.503), Verdict::effective);
  EXPECT_EQ(M::verdict(0.5, 0.5625, std::numeric_limits<double>::quiet_NaN()),
            Verdict::inconclusive);
}

TEST(KeyboardBacklightWriteMonitor, GivesUpAfterTwoIgnoredWritesInARow) {
  const auto run = [](std::initializer_list<Verdict> verdicts) {
    KeyboardBacklightWriteMonitor monitor;
    bool giveUp = false;
    for (Verdict v : verdicts) giveUp = monitor.record(v);
    return giveUp;
  };
  EXPECT_FALSE(run({Verdict::noEffect}));
  EXPECT_TRUE(run({Verdict::noEffect, Verdict::noEffect}));
  EXPECT_TRUE(run({Verdict::noEffect, Verdict::inconclusive, Verdict::noEffect}));
  EXPECT_FALSE(run({Verdict::noEffect, Verdict::effective, Verdict::noEffect}));
  EXPECT_TRUE(run({Verdict::noEffect, Verdict::noEffect, Verdict::inconclusive}));
  EXPECT_FALSE(run({Verdict::noEffect, Verdict::noEffect, Verdict::effective}));

  KeyboardBacklightWriteMonitor monitor;
  monitor.record(Verdict::noEffect);
  monitor.record(Verdict::noEffect);
  monitor.record(Verdict::noEffect);
  EXPECT_EQ(monitor.ineffectiveInARow(), 3);
}

}  // namespace
}  // namespace tindra
