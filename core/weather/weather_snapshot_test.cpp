#include "weather/weather_snapshot.h"

#include <gtest/gtest.h>

#include "weather/precipitation_summary.h"

namespace tindra {
namespace {

WeatherSnapshot fullSnapshot() {
  WeatherSnapshot snapshot;
  snapshot.coordinate = {59.91, -10.75};
  snapshot.temperature = -2.7;
  snapshot.condition = WeatherCondition::partlyCloudy;
  snapshot.isNight = true;
  snapshot.precipitationChance = 12.5;
  snapshot.precipitationAmount = 0.1;
  snapshot.precipitationHours = 6;
  snapshot.validAt = 1652907600;
  snapshot.fetchedAt = 1652907965.25;
  snapshot.expiresAt = 1652909765;
  snapshot.lastModified = "Wed, 18 May 2022 20:36:05 GMT";
  return snapshot;
}

TEST(WeatherSnapshot, JSONRoundTripsWithAndWithoutOptionals) {
  const WeatherSnapshot full = fullSnapshot();
  EXPECT_EQ(decodeWeatherSnapshot(encodeWeatherSnapshot(full)), full);

  WeatherSnapshot bare = full;
  bare.precipitationChance.reset();
  bare.precipitationAmount.reset();
  bare.precipitationHours.reset();
  bare.expiresAt.reset();
  bare.lastModified.reset();
  const std::string text = encodeWeatherSnapshot(bare);
  EXPECT_EQ(text.find("expiresAt"), std::string::npos) << text;
  EXPECT_EQ(decodeWeatherSnapshot(text), bare);
  EXPECT_NE(decodeWeatherSnapshot(text), full);

  const std::string withNulls =
      R"({"coordinate":{"latitude":1,"longitude":2},"temperature":3,"condition":"fog",)"
      R"("isNight":false,"validAt":4,"fetchedAt":5,"expiresAt":null,"lastModified":null,)"
      R"("precipitationHours":null,"unknownMember":[]})";
  const auto decoded = decodeWeatherSnapshot(withNulls);
  ASSERT_TRUE(decoded.has_value());
  EXPECT_EQ(decoded->condition, WeatherCondition::fog);
  EXPECT_EQ(decoded->expiresAt, std::nullopt);
}

TEST(WeatherSnapshot, DecodingRefusesMissingOrMistypedMembers) {
  const std::string good = encodeWeatherSnapshot(fullSnapshot());
  const auto replaced = [&](const std::string& from, const std::string& to) {
    std::string text = good;
    text.replace(text.find(from), from.size(), to);
    return text;
  };
  for (const std::string& text : {
           std::string("{}"),
           std::string("[]"),
           std::string("not json"),
           replaced(R"("condition":"partlyCloudy")", R"("condition":"partlycloudy")"),
           replaced(R"("isNight":true)", R"("isNight":1)"),
           replaced(R"("precipitationHours":6)", R"("precipitationHours":6.5)"),
           replaced(R"("precipitationHours":6)", R"("precipitationHours":1e10)"),
           replaced(R"("lastModified":")", R"("lastModified":7,"x":")"),
           replaced(R"("temperature":-2.7)", R"("temperature":null)"),
           replaced(R"("latitude":59.91)", R"("latitude":"59.91")"),
           replaced(R"("expiresAt":1652909765)", R"("expiresAt":"soon")"),
       }) {
    EXPECT_EQ(decodeWeatherSnapshot(text), std::nullopt) << text;
  }
}

TEST(PrecipitationSummary, AmountThenChanceThenNone) {
  WeatherSnapshot snapshot = fullSnapshot();
  const auto summary = [&](std::optional<double> chance, std::optional<double> amount,
                           std::optional<int> hours) {
    snapshot.precipitationChance = chance;
    snapshot.precipitationAmount = amount;
    snapshot.precipitationHours = hours;
    return PrecipitationSummary::of(snapshot).value;
  };
  using S = PrecipitationSummary;
  EXPECT_EQ(summary(80, 2.04, 6), S::Value(S::Amount{2.0, 6}));
  EXPECT_EQ(summary(80, 0.05, 1), S::Value(S::Amount{0.1, 1}));
  EXPECT_EQ(summary(80, 0.04, 1), S::Value(S::Chance{80}));
  EXPECT_EQ(summary(0.5, 0, 1), S::Value(S::Chance{1}));
  EXPECT_EQ(summary(0.49, 0, 12), S::Value(S::None{12}));
  EXPECT_EQ(summary(std::nullopt, 0, 6), S::Value(S::None{6}));
  EXPECT_EQ(summary(130, std::nullopt, 6), S::Value(S::Chance{100}));
  EXPECT_EQ(summary(-5, std::nullopt, 6), S::Value(S::Unknown{}));
  EXPECT_EQ(summary(std::nullopt, std::nullopt, 1), S::Value(S::Unknown{}));
  EXPECT_EQ(summary(50, 3, std::nullopt), S::Value(S::Unknown{}));
}

}  // namespace
}  // namespace tindra
