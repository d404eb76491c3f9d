#include "activity/rect.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(Rect, ContainsItsLowerEdgesButNotItsUpperOnes) {
  const Rect r{-10, 0, 20, 10};
  EXPECT_TRUE(r.contains({-10, 0}));
  EXPECT_TRUE(r.contains({9.999, 9.999}));
  EXPECT_FALSE(r.contains({10, 5}));
  EXPECT_FALSE(r.contains({0, 10}));
  EXPECT_EQ(r.midX(), 0);
  EXPECT_EQ(r.maxY(), 10);
}

}  // namespace
}  // namespace tindra
