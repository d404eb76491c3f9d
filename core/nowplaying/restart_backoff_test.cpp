#include "nowplaying/restart_backoff.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tindra {
namespace {

TEST(RestartBackoffTest, DoublesToTheCapAndAsksForARetestAfterFiveFailures) {
  RestartBackoff backoff = RestartBackoff::streamSource();
  std::vector<double> delays;
  std::vector<bool> retests;
  for (int i = 0; i < 9; ++i) {
    delays.push_back(backoff.nextDelay(100, 101));
    retests.push_back(backoff.shouldRetest());
  }
  EXPECT_EQ(delays, (std::vector<double>{0.5, 1, 2, 4, 8, 16, 30, 30, 30}));
  EXPECT_EQ(retests, (std::vector<bool>{false, false, false, false, true, true, true, true, true}));

  // A child that ran for the stable time starts the series again, however many failed before.
  EXPECT_EQ(backoff.nextDelay(100, 140), 0.5);
  EXPECT_FALSE(backoff.shouldRetest());
  EXPECT_EQ(backoff.nextDelay(100, 129.99), 1);
  EXPECT_EQ(backoff.nextDelay(100, 130), 0.5) << "exactly the stable time counts as stable";
  backoff.nextDelay(0, 1);
  backoff.reset();
  EXPECT_EQ(backoff.consecutiveFailures, 0);
  EXPECT_EQ(backoff.nextDelay(0, 1), 0.5);
}

TEST(RestartBackoffTest, CreationClampsAndTheExponentStopsGrowing) {
  const RestartBackoff clamped(-1, -5, -2, 0);
  EXPECT_EQ(clamped, RestartBackoff(0, 0, 0, 1));
  const RestartBackoff nans(std::nan(""), std::nan(""), std::nan(""), -3);
  EXPECT_EQ(nans, RestartBackoff(0, 0, 0, 1));
  EXPECT_EQ(RestartBackoff(5, 2, 30, 5).maxDelay, 5) << "the cap is never below the first delay";

  RestartBackoff uncapped(1, INFINITY, 1e9, 1);
  double delay = 0;
  for (int i = 0; i < 40; ++i) delay = uncapped.nextDelay(0, 1);
  EXPECT_EQ(delay, std::ldexp(1.0, 32));
  EXPECT_TRUE(uncapped.shouldRetest());
}

}  // namespace
}  // namespace tindra
