#include "weather/temperature_course.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "base/json_reader.h"

namespace tindra {
namespace {

TEST(TemperatureCourseTest, GivesADaysHighAndLowFromTheRealForecastAndKeepsItsSteps) {
  std::ifstream file(TINDRA_CORE_DIR "/weather/testdata/met-complete-2022-05-18.json");
  std::stringstream text;
  text << file.rdbuf();
  const auto document = METForecastParser::decode(text.str());
  ASSERT_TRUE(document);
  const TemperatureCourse course = TemperatureCourse::of(*document);
  EXPECT_EQ(course.steps.size(), 79U);
  // 20 May 2022, UTC: from 9.5 °C before dawn to 18.7 °C at ten.
  const auto may20 = course.range(1653004800, 1653004800 + 86400);
  ASSERT_TRUE(may20);
  EXPECT_LE(may20->low, 9.5);
  EXPECT_GE(may20->high, 18.7);
  EXPECT_FALSE(course.range(0, 86400)) << "no step that day";
  // The end of the interval is not in it.
  EXPECT_EQ(course.range(course.steps[0].first - 1, course.steps[0].first), std::nullopt);

  EXPECT_EQ(TemperatureCourse::fromJSON(course.toJSON()), course);
  const auto mixed = JSONReader::parse(R"([[1, 2], [3], "x", [4, "5"], [6, 7]])");
  EXPECT_EQ(TemperatureCourse::fromJSON(*mixed).steps,
            (std::vector<std::pair<double, double>>{{1, 2}, {6, 7}}));
}

}  // namespace
}  // namespace tindra
