#include "base/internet_date_time.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(InternetDateTimeTest, ReadsZonesFractionsAndCalendarEdges) {
  EXPECT_EQ(parseInternetDateTime("1970-01-01T00:00:00Z").value(), 0);
  EXPECT_EQ(parseInternetDateTime("2024-05-01T12:30:05Z").value(), 1714566605);
  EXPECT_EQ(parseInternetDateTime("2024-05-01T14:30:05+02:00").value(), 1714566605);
  EXPECT_EQ(parseInternetDateTime("2024-05-01T07:00:05-05:30").value(), 1714566605);
  EXPECT_EQ(parseInternetDateTime("2024-05-01t12:30:05z").value(), 1714566605);
  EXPECT_DOUBLE_EQ(parseInternetDateTime("2024-05-01T12:30:05.25Z").value(), 1714566605.25);
  EXPECT_DOUBLE_EQ(parseInternetDateTime("2024-05-01T12:30:05.123456789012Z").value(),
                   1714566605.123456789012);
  EXPECT_EQ(parseInternetDateTime("1969-12-31T23:59:59Z").value(), -1);
  EXPECT_EQ(parseInternetDateTime("2024-02-29T00:00:00Z").value(), 1709164800);
  EXPECT_EQ(parseInternetDateTime("2000-02-29T00:00:00Z").value(), 951782400);
  EXPECT_EQ(parseInternetDateTime("2016-12-31T23:59:60Z").value(), 1483228800);
}

TEST(InternetDateTimeTest, OutOfRangeFieldsAndLooseShapesAreUnreadable) {
  for (const char* text :
       {"2024-13-01T00:00:00Z", "2024-00-01T00:00:00Z", "2024-04-31T00:00:00Z",
        "2023-02-29T00:00:00Z", "1900-02-29T00:00:00Z", "2024-01-00T00:00:00Z",
        "2024-01-01T24:00:00Z", "2024-01-01T25:00:00Z", "2024-01-01T00:60:00Z",
        "2024-01-01T00:00:61Z", "2024-01-01T00:00:00+24:00", "2024-01-01T00:00:00+00:60"}) {
    EXPECT_EQ(parseInternetDateTime(text).error(), InternetDateTimeError::outOfRange) << text;
  }
  for (const char* text :
       {"", "2024-01-01", "2024-01-01T00:00Z", "2024-01-01T00:00:00", "2024-01-01 00:00:00Z",
        "2024-01-01T00:00:00.Z", "2024-01-01T00:00:00+0100", "2024-01-01T00:00:00+01",
        "24-01-01T00:00:00Z", "2024-1-01T00:00:00Z", "2024-01-01T00:00:00Zx",
        " 2024-01-01T00:00:00Z", "2024-01-01T00:00:00,5Z", "+2024-01-01T00:00:00Z"}) {
    EXPECT_EQ(parseInternetDateTime(text).error(), InternetDateTimeError::malformed) << text;
  }
}

}  // namespace
}  // namespace tindra
