#include <gtest/gtest.h>

#include "weather/http_date.h"
#include "weather/rfc3339_date_time.h"

namespace tindra {
namespace {

TEST(RFC3339DateTime, ReadsServiceTimesWithFractionsAndOffsets) {
  EXPECT_EQ(parseRFC3339DateTime("1970-01-01T00:00:00Z"), 0);
  EXPECT_EQ(parseRFC3339DateTime("2022-05-18T21:00:00Z"), 1652907600);
  EXPECT_EQ(parseRFC3339DateTime("2022-05-18t21:00:00z"), 1652907600);
  EXPECT_EQ(parseRFC3339DateTime("2022-05-18T23:30:00+02:30"), 1652907600);
  EXPECT_EQ(parseRFC3339DateTime("2022-05-18T20:00:00-01:00"), 1652907600);
  EXPECT_EQ(parseRFC3339DateTime("2024-02-29T00:00:00.25Z"), 1709164800.25);
  EXPECT_EQ(parseRFC3339DateTime("1969-12-31T23:59:59Z"), -1);
  EXPECT_EQ(parseRFC3339DateTime("2000-02-29T12:00:00Z"), 951825600);
}

TEST(RFC3339DateTime, RefusesOtherFormsAndOutOfRangeFields) {
  for (const char* text :
       {"", "2022-05-18", "2022-05-18T21:00Z", "2022-05-18T21:00:00", "2022-05-18 21:00:00Z",
        "2022-05-18T21:00:00.Z", "2022-5-18T21:00:00Z", "2022-05-18T21:00:00+0200",
        "2022-05-18T21:00:00+24:00", "2022-13-01T00:00:00Z", "2023-02-29T00:00:00Z",
        "1900-02-29T00:00:00Z", "2022-04-31T00:00:00Z", "2022-05-18T24:00:00Z",
        "2022-05-18T23:60:00Z", "2022-05-18T23:59:61Z", "2022-05-18T21:00:00ZZ",
        "+022-05-18T21:00:00Z"}) {
    EXPECT_EQ(parseRFC3339DateTime(text), std::nullopt) << text;
  }
}

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
