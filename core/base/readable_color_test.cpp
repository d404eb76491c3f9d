#include "base/readable_color.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tindra {
namespace {

using namespace ReadableColor;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(ReadableColor, LuminanceAndContrastOfKnownColours) {
  EXPECT_DOUBLE_EQ(relativeLuminance(white), 1.0);
  EXPECT_EQ(relativeLuminance(black), 0.0);
  EXPECT_NEAR(relativeLuminance({0.5, 0.5, 0.5}), 0.2140, 1e-4);
  EXPECT_DOUBLE_EQ(relativeLuminance({0, 0, 1}), 0.0722);
  EXPECT_DOUBLE_EQ(relativeLuminance({0, 1, 0}), 0.7152);
  // Below the knee a channel is linear.
  EXPECT_DOUBLE_EQ(relativeLuminance({0.04, 0, 0}), 0.2126 * 0.04 / 12.92);

  EXPECT_DOUBLE_EQ(contrastRatio(white, black), 21.0);
  EXPECT_DOUBLE_EQ(contrastRatio(black, white), 21.0);
  EXPECT_DOUBLE_EQ(contrastRatio(white, white), 1.0);
}

TEST(ReadableColor, ChannelsAreClampedAndNaNCountsAsZero) {
  EXPECT_DOUBLE_EQ(relativeLuminance({nan, -1, 2}), 0.0722);
  EXPECT_DOUBLE_EQ(relativeLuminance({inf, -inf, nan}), 0.2126);
  EXPECT_DOUBLE_EQ(relativeLuminance({-0.0, 1.0000001, 0}), 0.7152);
  EXPECT_EQ(readableTextColor(SRGBColor{nan, nan, nan}), white);  // as on black
  EXPECT_EQ(readableTextColor(SRGBColor{5, 5, 5}), black);
}

TEST(ReadableColor, TextColourFollowsTheBetterContrastAndTiesGoWhite) {
  EXPECT_EQ(readableTextColor(SRGBColor{0.5, 0.5, 0.5}), black);
  EXPECT_EQ(readableTextColor(SRGBColor{0, 0, 1}), white);
  EXPECT_EQ(readableTextColor(SRGBColor{1, 1, 0}), black);
  EXPECT_EQ(readableTextColor(black), white);
  EXPECT_EQ(readableTextColor(white), black);

  // Equal contrast where (L + 0.05)² = 0.0525; walk to a luminance where the two computed
  // contrasts are exactly equal, and check both sides of it.
  double tie = std::sqrt(0.0525) - 0.05;
  for (int step = 0; step < 64 && contrastRatio(tie, 0.0) != contrastRatio(tie, 1.0); ++step) {
    tie = std::nextafter(tie, contrastRatio(tie, 0.0) < contrastRatio(tie, 1.0) ? 1.0 : 0.0);
  }
  ASSERT_EQ(contrastRatio(tie, 0.0), contrastRatio(tie, 1.0));
  EXPECT_EQ(readableTextColor(tie), white);
  EXPECT_EQ(readableTextColor(tie + 1e-9), black);
  EXPECT_EQ(readableTextColor(tie - 1e-9), white);
}

}  // namespace
}  // namespace tindra
