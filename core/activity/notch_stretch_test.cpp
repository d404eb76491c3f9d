#include "activity/notch_stretch.h"

#include <gtest/gtest.h>

#include <limits>

namespace tindra {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(NotchStretch, MakerClampsAndIdentityIgnoresTheAnchor) {
  EXPECT_EQ(NotchStretch(-1, nan, 2), NotchStretch(0, 0, 1.0));
  EXPECT_EQ(NotchStretch(inf, -inf, 0.1), NotchStretch(0, 0, 0.3));
  EXPECT_EQ(NotchStretch(1.1, 0.9, -inf).anchorX(), 0.5);
  EXPECT_TRUE(NotchStretch(1, 1, 0.9).isIdentity());
  EXPECT_NE(NotchStretch(1, 1, 0.9), NotchStretch::identity());
}

TEST(NotchStretch, AmountEasesOutToItsCapAndIsSymmetric) {
  EXPECT_DOUBLE_EQ(NotchStretch::amount(-0.5), 0.09);
  EXPECT_DOUBLE_EQ(NotchStretch::amount(1), 0.12);
  EXPECT_DOUBLE_EQ(NotchStretch::amount(5), 0.12);
  EXPECT_EQ(NotchStretch::amount(inf), 0);
  EXPECT_EQ(NotchStretch::amount(nan), 0);
}

}  // namespace
}  // namespace tindra
