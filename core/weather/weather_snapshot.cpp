#include "weather/weather_snapshot.h"

#include <cmath>
#include <limits>

#include "base/json_reader.h"
#include "base/json_writer.h"

namespace tindra {
namespace {

// A member that may be missing: `present` is null when it is absent or null.
struct OptionalMember {
  bool wellTyped = true;
  const JSONValue* present = nullptr;
};

OptionalMember optionalMember(const JSONValue& object, std::string_view name,
                              JSONValue::Type type) {
  const JSONValue* member = object.find(name);
  if (member == nullptr || member->isNull()) return {};
  if (member->type() != type) return {.wellTyped = false};
  return {.present = member};
}

bool readOptionalNumber(const JSONValue& object, std::string_view name,
                        std::optional<double>& out) {
  const OptionalMember member = optionalMember(object, name, JSONValue::Type::number);
  if (member.present != nullptr) out = *member.present->asNumber();
  return member.wellTyped;
}

bool readOptionalHours(const JSONValue& object, std::string_view name, std::optional<int>& out) {
  std::optional<double> number;
  if (!readOptionalNumber(object, name, number)) return false;
  if (!number) return true;
  if (std::trunc(*number) != *number || std::fabs(*number) > std::numeric_limits<int>::max()) {
    return false;
  }
  out = static_cast<int>(*number);
  return true;
}

bool readOptionalString(const JSONValue& object, std::string_view name,
                        std::optional<std::string>& out) {
  const OptionalMember member = optionalMember(object, name, JSONValue::Type::string);
  if (member.present != nullptr) out = *member.present->asString();
  return member.wellTyped;
}

const double* requiredNumber(const JSONValue& object, std::string_view name) {
  const JSONValue* member = object.find(name);
  return member == nullptr ? nullptr : member->asNumber();
}

template <typename T>
void putIfPresent(JSONValue::Object& object, const char* name, const std::optional<T>& value) {
  if (value) object.emplace(name, *value);
}

}  // namespace

JSONValue toJSON(const WeatherSnapshot& snapshot) {
  JSONValue::Object object{
      {"coordinate", toJSON(snapshot.coordinate)},
      {"temperature", snapshot.temperature},
      {"condition", rawValue(snapshot.condition)},
      {"isNight", snapshot.isNight},
      {"validAt", snapshot.validAt},
      {"fetchedAt", snapshot.fetchedAt},
  };
  putIfPresent(object, "precipitationChance", snapshot.precipitationChance);
  putIfPresent(object, "precipitationAmount", snapshot.precipitationAmount);
  putIfPresent(object, "precipitationHours", snapshot.precipitationHours);
  putIfPresent(object, "expiresAt", snapshot.expiresAt);
  putIfPresent(object, "lastModified", snapshot.lastModified);
  return object;
}

std::optional<WeatherSnapshot> weatherSnapshotFromJSON(const JSONValue& value) {
  if (value.asObject() == nullptr) return std::nullopt;
  const JSONValue* coordinateValue = value.find("coordinate");
  const JSONValue* conditionValue = value.find("condition");
  const JSONValue* isNightValue = value.find("isNight");
  const double* temperature = requiredNumber(value, "temperature");
  const double* validAt = requiredNumber(value, "validAt");
  const double* fetchedAt = requiredNumber(value, "fetchedAt");
  if (coordinateValue == nullptr || conditionValue == nullptr || isNightValue == nullptr ||
      temperature == nullptr || validAt == nullptr || fetchedAt == nullptr) {
    return std::nullopt;
  }
  const std::optional<GeoCoordinate> coordinate = geoCoordinateFromJSON(*coordinateValue);
  const std::string* conditionText = conditionValue->asString();
  const std::optional<WeatherCondition> condition =
      conditionText == nullptr ? std::nullopt : enumFromRaw<WeatherCondition>(*conditionText);
  if (!coordinate || !condition || isNightValue->asBool() == nullptr) return std::nullopt;

  WeatherSnapshot snapshot;
  snapshot.coordinate = *coordinate;
  snapshot.temperature = *temperature;
  snapshot.condition = *condition;
  snapshot.isNight = *isNightValue->asBool();
  snapshot.validAt = *validAt;
  snapshot.fetchedAt = *fetchedAt;
  const bool optionalsRead =
      readOptionalNumber(value, "precipitationChance", snapshot.precipitationChance) &&
      readOptionalNumber(value, "precipitationAmount", snapshot.precipitationAmount) &&
      readOptionalHours(value, "precipitationHours", snapshot.precipitationHours) &&
      readOptionalNumber(value, "expiresAt", snapshot.expiresAt) &&
      readOptionalString(value, "lastModified", snapshot.lastModified);
  if (!optionalsRead) return std::nullopt;
  return snapshot;
}

std::string encodeWeatherSnapshot(const WeatherSnapshot& snapshot) {
  return JSONWriter::write(toJSON(snapshot));
}

std::optional<WeatherSnapshot> decodeWeatherSnapshot(std::string_view text) {
  const auto value = JSONReader::parse(text);
  if (!value) return std::nullopt;
  return weatherSnapshotFromJSON(*value);
}

}  // namespace tindra
