#include "weather/temperature_course.h"

#include <algorithm>
#include <cmath>

#include "base/internet_date_time.h"

namespace tindra {

TemperatureCourse TemperatureCourse::of(const METForecastParser::Document& document) {
  TemperatureCourse course;
  for (const METForecastParser::Step& step : document.properties.timeseries) {
    const auto time = parseInternetDateTime(step.time);
    const auto degrees = step.data.instant.details.airTemperature;
    if (time && degrees && std::isfinite(*degrees)) course.steps.emplace_back(*time, *degrees);
  }
  std::ranges::stable_sort(course.steps, {}, &std::pair<double, double>::first);
  return course;
}

std::optional<TemperatureCourse::Range> TemperatureCourse::range(double from, double to) const {
  std::optional<Range> range;
  for (const auto& [time, degrees] : steps) {
    if (time < from || time >= to) continue;
    if (!range) {
      range = Range{degrees, degrees};
    } else {
      range->low = std::min(range->low, degrees);
      range->high = std::max(range->high, degrees);
    }
  }
  return range;
}

JSONValue TemperatureCourse::toJSON() const {
  JSONValue::Array array;
  for (const auto& [time, degrees] : steps) array.emplace_back(JSONValue::Array{time, degrees});
  return array;
}

TemperatureCourse TemperatureCourse::fromJSON(const JSONValue& value) {
  TemperatureCourse course;
  const JSONValue::Array* array = value.asArray();
  if (array == nullptr) return course;
  for (const JSONValue& pair : *array) {
    const JSONValue::Array* members = pair.asArray();
    if (members == nullptr || members->size() != 2) continue;
    const double* time = (*members)[0].asNumber();
    const double* degrees = (*members)[1].asNumber();
    if (time && degrees && std::isfinite(*time) && std::isfinite(*degrees)) {
      course.steps.emplace_back(*time, *degrees);
    }
  }
  std::ranges::stable_sort(course.steps, {}, &std::pair<double, double>::first);
  return course;
}

}  // namespace tindra
