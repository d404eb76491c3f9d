#include "base/next_change.h"

#include <gtest/gtest.h>

#include <cmath>

#include "testing/manual_one_shot_scheduler.h"

namespace tindra {
namespace {

TEST(NextChangeTest, AimsAtTheEarliestMomentStillToComeAndAtTheLatestWithoutOne) {
  auto owned = std::make_unique<ManualOneShotScheduler>();
  ManualOneShotScheduler& scheduler = *owned;
  int woken = 0;
  NextChange change([&] { ++woken; }, std::move(owned));
  change.aim(100, 160, [](const auto& consider) {
    consider(100);  // now is shown already: aimed at, it would wake at once, again and again
    consider(90);
    consider(std::nan(""));
    consider(130);
    consider(120);
  });
  EXPECT_EQ(change.next(), 120);
  EXPECT_EQ(scheduler.aimed(), 20);

  change.aim(100, 160, [](const auto& consider) { consider(170); });
  EXPECT_EQ(change.next(), 160);
  scheduler.fire();
  EXPECT_EQ(woken, 1);
  EXPECT_EQ(change.next(), std::nullopt) << "none pending once it came";
}

}  // namespace
}  // namespace tindra
