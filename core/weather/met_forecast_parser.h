// METForecastParser: reads a MET Norway Locationforecast 2.0 document (GeoJSON with
// `properties.timeseries`) into the WeatherSnapshot for a moment: the step nearest that moment
// with a temperature, its sky and its precipitation outlook. Only the members mirrored below are
// read; the rest of the document is ignored. Pure: no clock, no I/O.
#pragma once

#include <cstddef>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/enum_table.h"
#include "weather/geo_coordinate.h"
#include "weather/weather_snapshot.h"

namespace tindra {

class METForecastParser {
 public:
  enum class ParseError { tooLarge, malformed, noCurrentData };

  static constexpr std::size_t maximumDocumentBytes = 2'097'152;
  // How far from `now` a step may lie to count as the current weather.
  static constexpr double currentStepReach = 7200;

  // The decoded members. JSON null counts as absent; a member of the wrong type is malformed.
  struct Summary {
    std::optional<std::string> symbolCode;
  };
  struct PeriodDetails {
    std::optional<double> precipitationAmount;         // millimetres
    std::optional<double> probabilityOfPrecipitation;  // percent
  };
  struct Period {
    std::optional<Summary> summary;
    std::optional<PeriodDetails> details;
  };
  struct InstantDetails {
    std::optional<double> airTemperature;  // degrees Celsius
  };
  struct Instant {
    InstantDetails details;
  };
  struct StepData {
    Instant instant;
    std::optional<Period> next1Hours;
    std::optional<Period> next6Hours;
    std::optional<Period> next12Hours;
  };
  struct Step {
    std::string time;  // RFC 3339, UTC
    StepData data;
  };
  struct Properties {
    std::vector<Step> timeseries;
  };
  struct Document {
    Properties properties;
  };

  // The size check and the decoding alone.
  static std::expected<Document, ParseError> decode(std::string_view data);

  // The snapshot for `now`; `coordinate`, `fetchedAt`, `expiresAt` and `lastModified` are stored
  // in it as given.
  static std::expected<WeatherSnapshot, ParseError> parse(
      std::string_view data, const GeoCoordinate& coordinate, double now, double fetchedAt,
      std::optional<double> expiresAt = std::nullopt,
      std::optional<std::string> lastModified = std::nullopt);
};

template <>
struct EnumTable<METForecastParser::ParseError> {
  static constexpr std::array cases{
      EnumCase{METForecastParser::ParseError::tooLarge, "tooLarge"},
      EnumCase{METForecastParser::ParseError::malformed, "malformed"},
      EnumCase{METForecastParser::ParseError::noCurrentData, "noCurrentData"}};
};

}  // namespace tindra
