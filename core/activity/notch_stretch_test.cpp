#include "activity/notch_stretch.h"

#include <gtest/gtest.h>

#include <limits>

namespace tindra {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(NotchStretch, MakerClampsEveryField) {
  EXPECT_EQ(NotchStretch(-1, nan, 2), NotchStretch(0, 0, 1.0));
  EXPECT_EQ(NotchStretch(inf, -inf, 0.1), NotchStretch(0, 0, 0.3));
  EXPECT_EQ(NotchStretch(1.1, 0.9, nan).anchorX(), 0.5);
  EXPECT_EQ(NotchStretch(1.1, 0.9, -inf).anchorX(), 0.5);
  EXPECT_EQ(NotchStretch(1.1, 0.9, 0.3).anchorX(), 0.3);
  EXPECT_DOUBLE_EQ(NotchStretch(1.1, 0.9, 0.7).widthScale(), 1.1);
}

TEST(NotchStretch, IdentityIgnoresTheAnchor) {
  EXPECT_TRUE(NotchStretch::identity().isIdentity());
  EXPECT_TRUE(NotchStretch(1, 1, 0.9).isIdentity());
  EXPECT_NE(NotchStretch(1, 1, 0.9), NotchStretch::identity());
  EXPECT_FALSE(NotchStretch(1, 1.05, 0.5).isIdentity());
}

TEST(NotchStretch, AmountEasesOutToItsCapAndIsSymmetric) {
  EXPECT_EQ(NotchStretch::amount(0), 0);
  EXPECT_DOUBLE_EQ(NotchStretch::amount(0.5), 0.09);
  EXPECT_DOUBLE_EQ(NotchStretch::amount(-0.5), 0.09);
  EXPECT_DOUBLE_EQ(NotchStretch::amount(1), 0.12);
  EXPECT_DOUBLE_EQ(NotchStretch::amount(5), 0.12);
  EXPECT_EQ(NotchStretch::amount(inf), 0);
  EXPECT_EQ(NotchStretch::amount(nan), 0);
}

}  // namespace
}  // namespace tindra
