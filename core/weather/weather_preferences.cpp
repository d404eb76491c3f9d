#include "weather/weather_preferences.h"

#include <cmath>

#include "base/json_reader.h"
#include "base/json_writer.h"

namespace tindra {

namespace {

std::string text(const JSONValue& object, std::string_view name) {
  const JSONValue* value = object.find(name);
  const std::string* string = value ? value->asString() : nullptr;
  return string ? *string : std::string();
}

}  // namespace

std::string WeatherPreferences::encoded() const {
  JSONValue::Object object;
  if (location) object["location"] = toJSON(*location);
  object["locationName"] = locationName;
  object["contact"] = contact;
  object["unit"] = std::string(rawValue(unit));
  return JSONWriter::writePretty(object);
}

WeatherPreferences WeatherPreferences::decoded(std::string_view text) {
  WeatherPreferences preferences;
  const auto value = JSONReader::parse(text);
  if (!value || value->asObject() == nullptr) return preferences;
  if (const JSONValue* location = value->find("location")) {
    const auto coordinate = geoCoordinateFromJSON(*location);
    if (coordinate && std::abs(coordinate->latitude) <= 90 &&
        std::abs(coordinate->longitude) <= 180) {
      preferences.location = coordinate;
    }
  }
  preferences.locationName = tindra::text(*value, "locationName");
  preferences.contact = tindra::text(*value, "contact");
  preferences.unit = enumFromRaw<TemperatureUnit>(tindra::text(*value, "unit"))
                         .value_or(TemperatureUnit::automatic);
  return preferences;
}

}  // namespace tindra
