#include "weather/met_forecast_parser.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "base/internet_date_time.h"

namespace tindra {
namespace {

using ParseError = METForecastParser::ParseError;

const GeoCoordinate kOslo{59.91, 10.75};

std::string testFile(const std::string& name) {
  std::ifstream file(std::string(TINDRA_CORE_DIR "/weather/testdata/") + name, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

double at(const char* text) {
  return *parseInternetDateTime(text);
}

// A document whose steps are the given JSON objects.
std::string document(const std::string& steps) {
  return R"({"type":"Feature","properties":{"timeseries":[)" + steps + "]}}";
}

std::string step(const std::string& time, const std::string& temperature,
                 const std::string& periods = "") {
  return R"({"time":")" + time + R"(","data":{"instant":{"details":{"air_temperature":)" +
         temperature + "}}" + periods + "}}";
}

std::expected<WeatherSnapshot, ParseError> parseAt(const std::string& data, double now) {
  return METForecastParser::parse(data, kOslo, now, now + 1, now + 1800, "Tue, 17 May");
}

TEST(METForecastParser, CompleteDocumentFromTheService) {
  const std::string data = testFile("met-complete-2022-05-18.json");
  ASSERT_EQ(METForecastParser::decode(data)->properties.timeseries.size(), 79u);

  const auto first = parseAt(data, at("2022-05-18T21:20:00Z"));
  ASSERT_TRUE(first.has_value());
  EXPECT_EQ(first->temperature, 12.5);
  EXPECT_EQ(first->condition, WeatherCondition::cloudy);
  EXPECT_FALSE(first->isNight);
  EXPECT_EQ(first->precipitationChance, 0.3);
  EXPECT_EQ(first->precipitationHours, 1);
  EXPECT_EQ(first->validAt, at("2022-05-18T21:00:00Z"));
  EXPECT_EQ(first->fetchedAt, at("2022-05-18T21:20:01Z"));
  EXPECT_EQ(first->expiresAt, at("2022-05-18T21:50:00Z"));
  EXPECT_EQ(first->lastModified, "Tue, 17 May");

  // In the six-hourly part a step has no one-hour period: sky and rain come from six hours.
  const auto sixHourly = parseAt(data, at("2022-05-21T01:00:00Z"));
  ASSERT_TRUE(sixHourly.has_value());
  EXPECT_EQ(sixHourly->validAt, at("2022-05-21T00:00:00Z"));
  EXPECT_EQ(sixHourly->condition, WeatherCondition::rain);
  EXPECT_EQ(sixHourly->precipitationAmount, 2.0);
  EXPECT_EQ(sixHourly->precipitationChance, 45.1);
  EXPECT_EQ(sixHourly->precipitationHours, 6);

  // The last step has no periods at all; two hours after it nothing is current any more.
  const auto last = parseAt(data, at("2022-05-27T19:59:59Z"));
  ASSERT_TRUE(last.has_value());
  EXPECT_EQ(last->temperature, 18.0);
  EXPECT_EQ(last->condition, WeatherCondition::unknown);
  EXPECT_EQ(last->precipitationHours, std::nullopt);
  EXPECT_EQ(parseAt(data, at("2022-05-27T20:00:00Z")).error(), ParseError::noCurrentData);
  EXPECT_EQ(parseAt(data, at("2022-05-18T19:00:00Z")).error(), ParseError::noCurrentData);
  EXPECT_TRUE(parseAt(data, at("2022-05-18T19:00:01Z")).has_value());
}

TEST(METForecastParser, CompactDocumentWithEmptyTwelveHourDetails) {
  const std::string data = testFile("met-compact-2023-11-17.json");
  const auto night = parseAt(data, at("2023-11-17T19:30:00Z"));
  ASSERT_TRUE(night.has_value());
  EXPECT_EQ(night->temperature, -2.7);
  EXPECT_EQ(night->condition, WeatherCondition::clear);
  EXPECT_TRUE(night->isNight);
  EXPECT_EQ(night->precipitationAmount, 0.0);
  EXPECT_EQ(night->precipitationChance, std::nullopt);
  EXPECT_EQ(night->precipitationHours, 1);
  EXPECT_EQ(METForecastParser::decode(data)->properties.timeseries.size(), 85u);
}

TEST(METForecastParser, SizeIsCheckedBeforeDecoding) {
  // Padding with spaces keeps the document valid, so only the size can refuse it.
  const std::string valid = document(step("2024-01-01T12:00:00Z", "1"));
  std::string exact =
      valid + std::string(METForecastParser::maximumDocumentBytes - valid.size(), ' ');
  ASSERT_EQ(exact.size(), 2'097'152u);
  EXPECT_TRUE(parseAt(exact, at("2024-01-01T12:00:00Z")).has_value());
  exact.push_back(' ');
  EXPECT_EQ(parseAt(exact, at("2024-01-01T12:00:00Z")).error(), ParseError::tooLarge);
  // Garbage of the same size is still too large rather than malformed.
  EXPECT_EQ(METForecastParser::decode(std::string(2'097'153, '{')).error(), ParseError::tooLarge);
}

TEST(METForecastParser, CurrentStepChoice) {
  // Steps on 1 January 2024 given as time of day and temperature; now is noon.
  const auto temperatureAtNoon =
      [](std::initializer_list<std::pair<const char*, const char*>> steps)
      -> std::expected<double, ParseError> {
    std::string list;
    for (const auto& [time, temperature] : steps) {
      list += (list.empty() ? "" : ",") + step(std::string("2024-01-01T") + time, temperature);
    }
    const auto snapshot = parseAt(document(list), at("2024-01-01T12:00:00Z"));
    if (!snapshot) return std::unexpected(snapshot.error());
    return snapshot->temperature;
  };
  EXPECT_EQ(temperatureAtNoon({{"09:00:00Z", "1"}, {"15:00:00Z", "2"}}).error(),
            ParseError::noCurrentData);
  EXPECT_EQ(temperatureAtNoon({{"10:00:00Z", "1"}, {"14:00:00Z", "2"}}).error(),
            ParseError::noCurrentData);
  EXPECT_EQ(temperatureAtNoon({{"10:00:01Z", "1"}}), 1);
  EXPECT_EQ(temperatureAtNoon({{"13:59:59Z", "2"}}), 2);
  // A past step without a temperature is passed over for a future one.
  EXPECT_EQ(temperatureAtNoon({{"11:00:00Z", "null"}, {"12:30:00Z", "4"}}), 4);
  // An older past step is taken before any future one; the step at now counts as past.
  EXPECT_EQ(temperatureAtNoon({{"12:10:00Z", "9"}, {"11:30:00Z", "null"}, {"10:30:00Z", "7"}}), 7);
  EXPECT_EQ(temperatureAtNoon({{"13:00:00Z", "3"}, {"12:00:00Z", "2"}, {"11:00:00Z", "1"}}), 2);
  // Unreadable times are skipped, not fatal; equal times keep document order (the later wins).
  EXPECT_EQ(temperatureAtNoon({{"11:59:00", "5"}, {"11:00:00+00:00", "6"}, {"11:00:00Z", "8"}}), 8);
}

TEST(METForecastParser, PeriodsGiveSkyAndPrecipitationInOrderOfLength) {
  const double now = at("2024-01-01T12:00:00Z");
  const auto six = parseAt(
      document(step("2024-01-01T12:00:00Z", "1",
                    R"(,"next_6_hours":{"summary":{"symbol_code":"heavyrainshowers_night"},)"
                    R"("details":{"precipitation_amount":3.5,"probability_of_precipitation":80}},)"
                    R"("next_12_hours":{"summary":{"symbol_code":"snow"},"details":{}})")),
      now);
  ASSERT_TRUE(six.has_value());
  EXPECT_EQ(six->condition, WeatherCondition::heavyRain);
  EXPECT_TRUE(six->isNight);
  EXPECT_EQ(six->precipitationChance, 80);
  EXPECT_EQ(six->precipitationHours, 6);
  // The sky and the precipitation may come from different periods.
  const auto split =
      parseAt(document(step("2024-01-01T12:00:00Z", "1",
                            R"(,"next_1_hours":{"details":null},"next_6_hours":{"summary":{}},)"
                            R"("next_12_hours":{"summary":{"symbol_code":"fog"},"details":{}})")),
              now);
  ASSERT_TRUE(split.has_value());
  EXPECT_EQ(split->condition, WeatherCondition::fog);
  EXPECT_EQ(split->precipitationHours, 12);
  EXPECT_EQ(split->precipitationAmount, std::nullopt);
}

TEST(METForecastParser, MalformedShapes) {
  const double now = at("2024-01-01T12:00:00Z");
  for (const std::string& data : {
           std::string(""),
           std::string("[]"),
           std::string(R"({"properties":{"timeseries":{}}})"),
           std::string(R"({"properties":null})"),
           document(R"({"time":"2024-01-01T12:00:00Z"})"),
           document(R"({"time":12,"data":{"instant":{"details":{}}}})"),
           document(R"({"time":"2024-01-01T12:00:00Z","data":{"instant":{}}})"),
           document(step("2024-01-01T12:00:00Z", "\"warm\"")),
           document(step("2024-01-01T12:00:00Z", "1", R"(,"next_1_hours":[])")),
           document(step("2024-01-01T12:00:00Z", "1",
                         R"(,"next_6_hours":{"details":{"precipitation_amount":"1"}})")),
           document(step("2024-01-01T12:00:00Z", "1")) + "x",
       }) {
    EXPECT_EQ(parseAt(data, now).error(), ParseError::malformed) << data;
  }
  // Unknown members and an empty series are fine; the latter simply has nothing current.
  EXPECT_EQ(parseAt(document(""), now).error(), ParseError::noCurrentData);
  EXPECT_TRUE(parseAt(R"({"extra":[1,{}],"properties":{"meta":0,"timeseries":[)" +
                          step("2024-01-01T12:00:00Z", "1", R"(,"next_1_hours":{"odd":true})") +
                          "]}}",
                      now)
                  .has_value());
}

}  // namespace
}  // namespace tindra
