#include "weather/zone_table.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(ZoneTableTest, ReadsEachZonesCityAndSkipsWhatDoesNotRead) {
  const ZoneTable table = ZoneTable::parse(
      "# comment\n"
      "#codes\tcoordinates\tTZ\tcomments\n"
      "DE,DK,NO,SE,SJ\t+5230+01322\tEurope/Berlin\tmost of Germany\n"
      "US\t+404251-0740023\tAmerica/New_York\tEastern (most areas)\r\n"
      "AQ\t-7750+16636\tAntarctica/McMurdo\n"
      "XX\t+9130+01322\tBeyond/ThePole\n"  // latitude past 90
      "XX\t+5230\tHalf/APosition\n"        // no longitude
      "XX\t+5230+01322\n"                  // no zone
      "NO\t+5955+01045\tEurope/Oslo");     // no final line break
  ASSERT_EQ(table.zones().size(), 4U);
  EXPECT_NEAR(table.city("Europe/Berlin")->latitude, 52.5, 1e-9);
  EXPECT_NEAR(table.city("Europe/Berlin")->longitude, 13 + 22 / 60.0, 1e-9);
  const GeoCoordinate newYork = *table.city("America/New_York");
  EXPECT_NEAR(newYork.latitude, 40 + 42 / 60.0 + 51 / 3600.0, 1e-9);
  EXPECT_NEAR(newYork.longitude, -(74 + 0 / 60.0 + 23 / 3600.0), 1e-9);
  EXPECT_LT(table.city("Antarctica/McMurdo")->latitude, -77);
  EXPECT_TRUE(table.city("Europe/Oslo"));
  EXPECT_FALSE(table.city("Europe/Nowhere"));
  EXPECT_FALSE(ZoneTable::parseCoordinates("+5960+01045")) << "60 minutes";
  EXPECT_FALSE(ZoneTable::parseCoordinates("5955+01045")) << "no sign";
}

}  // namespace
}  // namespace tindra
