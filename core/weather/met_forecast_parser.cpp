#include "weather/met_forecast_parser.h"

#include <algorithm>
#include <cmath>
#include <ranges>

#include "base/internet_date_time.h"
#include "base/json_reader.h"

namespace tindra {
namespace {

using Parser = METForecastParser;

// Decodes the mirrored members, remembering the first member that breaks the shape.
class DocumentDecoder {
 public:
  bool malformed() const { return malformed_; }

  Parser::Document document(const JSONValue& root) {
    Parser::Document document;
    if (!expect(root, JSONValue::Type::object)) return document;
    const JSONValue* properties = required(root, "properties", JSONValue::Type::object);
    if (properties == nullptr) return document;
    const JSONValue* timeseries = required(*properties, "timeseries", JSONValue::Type::array);
    if (timeseries == nullptr) return document;
    for (const JSONValue& value : *timeseries->asArray()) {
      document.properties.timeseries.push_back(step(value));
      if (malformed_) break;
    }
    return document;
  }

 private:
  bool expect(const JSONValue& value, JSONValue::Type type) {
    if (value.type() != type) malformed_ = true;
    return !malformed_;
  }

  const JSONValue* required(const JSONValue& object, std::string_view name, JSONValue::Type type) {
    const JSONValue* member = object.find(name);
    if (member == nullptr || !expect(*member, type)) {
      malformed_ = true;
      return nullptr;
    }
    return member;
  }

  // Absent and null both give nullptr; any other type than `type` is malformed.
  const JSONValue* optional(const JSONValue& object, std::string_view name, JSONValue::Type type) {
    const JSONValue* member = object.find(name);
    if (member == nullptr || member->isNull() || !expect(*member, type)) return nullptr;
    return member;
  }

  std::optional<double> optionalNumber(const JSONValue& object, std::string_view name) {
    const JSONValue* member = optional(object, name, JSONValue::Type::number);
    if (member == nullptr) return std::nullopt;
    return *member->asNumber();
  }

  Parser::Step step(const JSONValue& value) {
    Parser::Step step;
    if (!expect(value, JSONValue::Type::object)) return step;
    const JSONValue* time = required(value, "time", JSONValue::Type::string);
    const JSONValue* data = required(value, "data", JSONValue::Type::object);
    if (time == nullptr || data == nullptr) return step;
    step.time = *time->asString();
    const JSONValue* instant = required(*data, "instant", JSONValue::Type::object);
    const JSONValue* details =
        instant == nullptr ? nullptr : required(*instant, "details", JSONValue::Type::object);
    if (details == nullptr) return step;
    step.data.instant.details.airTemperature = optionalNumber(*details, "air_temperature");
    step.data.next1Hours = period(*data, "next_1_hours");
    step.data.next6Hours = period(*data, "next_6_hours");
    step.data.next12Hours = period(*data, "next_12_hours");
    return step;
  }

  std::optional<Parser::Period> period(const JSONValue& data, std::string_view name) {
    const JSONValue* value = optional(data, name, JSONValue::Type::object);
    if (value == nullptr) return std::nullopt;
    Parser::Period period;
    if (const JSONValue* summary = optional(*value, "summary", JSONValue::Type::object)) {
      const JSONValue* code = optional(*summary, "symbol_code", JSONValue::Type::string);
      period.summary =
          Parser::Summary{code == nullptr ? std::nullopt : std::optional(*code->asString())};
    }
    if (const JSONValue* details = optional(*value, "details", JSONValue::Type::object)) {
      period.details = Parser::PeriodDetails{
          .precipitationAmount = optionalNumber(*details, "precipitation_amount"),
          .probabilityOfPrecipitation = optionalNumber(*details, "probability_of_precipitation")};
    }
    return period;
  }

  bool malformed_ = false;
};

struct TimedStep {
  double time;
  std::size_t order;  // position in the document, so equal times keep their order
  const Parser::Step* step;

  friend bool operator<(const TimedStep& a, const TimedStep& b) {
    return a.time < b.time || (a.time == b.time && a.order < b.order);
  }
};

bool hasFiniteTemperature(const TimedStep& timed) {
  const auto& temperature = timed.step->data.instant.details.airTemperature;
  return temperature && std::isfinite(*temperature);
}

// The latest step at or before `now` less than two hours old, then the earliest later step less
// than two hours ahead; steps without a usable temperature are passed over.
const TimedStep* currentStep(const std::vector<TimedStep>& steps, double now) {
  for (const TimedStep& timed : steps | std::views::reverse) {
    if (timed.time > now) continue;
    if (now - timed.time >= Parser::currentStepReach) break;
    if (hasFiniteTemperature(timed)) return &timed;
  }
  for (const TimedStep& timed : steps) {
    if (timed.time <= now) continue;
    if (timed.time - now >= Parser::currentStepReach) break;
    if (hasFiniteTemperature(timed)) return &timed;
  }
  return nullptr;
}

struct HourPeriod {
  int hours;
  const std::optional<Parser::Period>* period;
};

std::array<HourPeriod, 3> periodsByLength(const Parser::StepData& data) {
  return {{{1, &data.next1Hours}, {6, &data.next6Hours}, {12, &data.next12Hours}}};
}

const std::string* symbolCode(const Parser::StepData& data) {
  for (const HourPeriod& candidate : periodsByLength(data)) {
    const auto& period = *candidate.period;
    if (period && period->summary && period->summary->symbolCode) {
      return &*period->summary->symbolCode;
    }
  }
  return nullptr;
}

void takePrecipitation(const Parser::StepData& data, WeatherSnapshot& snapshot) {
  for (const HourPeriod& candidate : periodsByLength(data)) {
    const auto& period = *candidate.period;
    if (!period || !period->details) continue;
    snapshot.precipitationChance = period->details->probabilityOfPrecipitation;
    snapshot.precipitationAmount = period->details->precipitationAmount;
    snapshot.precipitationHours = candidate.hours;
    return;
  }
}

}  // namespace

std::expected<METForecastParser::Document, METForecastParser::ParseError> METForecastParser::decode(
    std::string_view data) {
  if (data.size() > maximumDocumentBytes) return std::unexpected(ParseError::tooLarge);
  const auto root = JSONReader::parse(data);
  if (!root) return std::unexpected(ParseError::malformed);
  DocumentDecoder decoder;
  Document document = decoder.document(*root);
  if (decoder.malformed()) return std::unexpected(ParseError::malformed);
  return document;
}

std::expected<WeatherSnapshot, METForecastParser::ParseError> METForecastParser::parse(
    std::string_view data, const GeoCoordinate& coordinate, double now, double fetchedAt,
    std::optional<double> expiresAt, std::optional<std::string> lastModified) {
  const auto document = decode(data);
  if (!document) return std::unexpected(document.error());

  std::vector<TimedStep> steps;
  for (const Step& step : document->properties.timeseries) {
    if (const auto time = parseInternetDateTime(step.time)) {
      steps.push_back({*time, steps.size(), &step});
    }
  }
  // A plain sort with the document order as tie-break: stable without a temporary buffer.
  std::sort(steps.begin(), steps.end());
  const TimedStep* current = currentStep(steps, now);
  if (current == nullptr) return std::unexpected(ParseError::noCurrentData);

  const StepData& stepData = current->step->data;
  WeatherSnapshot snapshot;
  snapshot.coordinate = coordinate;
  // Always present: the choice passes over steps without a finite temperature.
  snapshot.temperature = stepData.instant.details.airTemperature.value_or(0);
  snapshot.validAt = current->time;
  snapshot.fetchedAt = fetchedAt;
  snapshot.expiresAt = expiresAt;
  snapshot.lastModified = std::move(lastModified);
  if (const std::string* code = symbolCode(stepData)) {
    snapshot.condition = weatherConditionFromSymbolCode(*code);
    snapshot.isNight = isNightSymbolCode(*code);
  }
  takePrecipitation(stepData, snapshot);
  return snapshot;
}

}  // namespace tindra
