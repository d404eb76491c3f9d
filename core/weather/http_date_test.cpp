#include <gtest/gtest.h>

#include "weather/http_date.h"

namespace tindra {
namespace {

TEST(HTTPDate, ReadsTheFixedFormInGMT) {
  EXPECT_EQ(parseHTTPDate("Wed, 18 May 2022 21:06:05 GMT"), 1652907965);
  EXPECT_EQ(parseHTTPDate("Thu, 01 Jan 1970 00:00:00 GMT"), 0);
  EXPECT_EQ(parseHTTPDate("thu, 01 JAN 1970 00:00:00 utc"), 0);
  EXPECT_EQ(parseHTTPDate("Thu, 29 Feb 2024 23:59:59 GMT"), 1709251199);
  for (const char* text : {"", "Wed, 18 May 2022 21:06:05", "Wed, 18 May 2022 21:06:05 PST",
                           "Wed, 18 May 2022 21:06:05 GMT ", "Wed 18 May 2022 21:06:05 GMT",
                           "Wed, 8 May 2022 21:06:05 GMT", "Wed, 18 Mai 2022 21:06:05 GMT",
                           "Wdn, 18 May 2022 21:06:05 GMT", "Wed, 31 Apr 2022 21:06:05 GMT",
                           "Wed, 18 May 2022 24:06:05 GMT", "Wed, 18 May 22 21:06:05 GMT",
                           "Wednesday, 18-May-22 21:06:05 GMT", "Wed, 18 May 2022 21:06:5x GMT",
                           "Wed, +8 May 2022 21:06:05 GMT"}) {
    EXPECT_EQ(parseHTTPDate(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace tindra
