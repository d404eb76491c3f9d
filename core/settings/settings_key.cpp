#include "settings/settings_key.h"

#include <cmath>

namespace tindra {

std::optional<bool> SettingsCodec<bool>::decode(const JSONValue& stored) {
  const bool* value = stored.asBool();
  return value ? std::optional<bool>(*value) : std::nullopt;
}

std::optional<std::int64_t> SettingsCodec<std::int64_t>::decode(const JSONValue& stored) {
  constexpr double exactLimit = 9007199254740992.0;  // 2^53
  const double* value = stored.asNumber();
  if (value == nullptr || std::trunc(*value) != *value || std::fabs(*value) > exactLimit) {
    return std::nullopt;
  }
  return static_cast<std::int64_t>(*value);
}

std::optional<double> SettingsCodec<double>::decode(const JSONValue& stored) {
  const double* value = stored.asNumber();
  return value ? std::optional<double>(*value) : std::nullopt;
}

std::optional<std::string> SettingsCodec<std::string>::decode(const JSONValue& stored) {
  const std::string* value = stored.asString();
  return value ? std::optional<std::string>(*value) : std::nullopt;
}

JSONValue SettingsCodec<std::optional<std::string>>::encode(
    const std::optional<std::string>& value) {
  return value ? JSONValue(*value) : JSONValue();
}

std::optional<std::optional<std::string>> SettingsCodec<std::optional<std::string>>::decode(
    const JSONValue& stored) {
  if (stored.isNull()) return std::optional<std::string>();
  const std::string* value = stored.asString();
  if (value == nullptr) return std::nullopt;
  return std::optional<std::string>(*value);
}

JSONValue SettingsCodec<std::vector<std::string>>::encode(const std::vector<std::string>& value) {
  return JSONValue::Array(value.begin(), value.end());
}

std::optional<std::vector<std::string>> SettingsCodec<std::vector<std::string>>::decode(
    const JSONValue& stored) {
  const JSONValue::Array* array = stored.asArray();
  if (array == nullptr) return std::nullopt;
  std::vector<std::string> strings;
  strings.reserve(array->size());
  for (const JSONValue& element : *array) {
    const std::string* text = element.asString();
    if (text == nullptr) return std::nullopt;
    strings.push_back(*text);
  }
  return strings;
}

std::optional<JSONValue::Object> SettingsCodec<JSONValue::Object>::decode(const JSONValue& stored) {
  const JSONValue::Object* object = stored.asObject();
  return object ? std::optional<JSONValue::Object>(*object) : std::nullopt;
}

}  // namespace tindra
