// TemperatureCourse: the forecast's air temperature step by step, kept beside the snapshot so the
// weather section can give a day's high and low without the whole document. Read from a decoded
// forecast; stored as JSON pairs of [time, degrees Celsius].
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "base/json_value.h"
#include "weather/met_forecast_parser.h"

namespace tindra {

struct TemperatureCourse {
  struct Range {
    double low;
    double high;
    friend bool operator==(const Range&, const Range&) = default;
  };

  std::vector<std::pair<double, double>> steps;  // seconds since 1970, degrees Celsius; by time

  // The steps of `document` that have a time and a finite temperature.
  static TemperatureCourse of(const METForecastParser::Document& document);
  // The lowest and highest temperature of the steps in [from, to); none without a step there.
  std::optional<Range> range(double from, double to) const;

  JSONValue toJSON() const;
  // Pairs that are not two finite numbers are left out; anything but an array reads as empty.
  static TemperatureCourse fromJSON(const JSONValue& value);
  friend bool operator==(const TemperatureCourse&, const TemperatureCourse&) = default;
};

}  // namespace tindra
