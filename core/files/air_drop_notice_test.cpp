#include "files/air_drop_notice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tindra {
namespace {

TEST(AirDropNotice, MergesArrivalsWithinEightSeconds) {
  AirDropNotice notice{{"a.jpg"}, 100};
  const std::vector<std::string> second{"b.jpg", "a.jpg", "b.jpg"};
  EXPECT_TRUE(notice.merge(second, 107));
  EXPECT_THAT(notice.files, testing::ElementsAre("a.jpg", "b.jpg"));
  EXPECT_EQ(notice.lastArrival, 107);

  // The window runs from the last arrival, and 8 s exactly still joins.
  const std::vector<std::string> third{"c.jpg"};
  EXPECT_TRUE(notice.merge(third, 115));
  EXPECT_FALSE(notice.merge(third, 124));
  EXPECT_THAT(notice.files, testing::ElementsAre("a.jpg", "b.jpg", "c.jpg"));
  EXPECT_EQ(notice.lastArrival, 115);
}

}  // namespace
}  // namespace tindra
