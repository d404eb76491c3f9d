// SettingsKey: a preference name bound to its value type, default and description. Value types
// are bool, std::int64_t, double, std::string, std::optional<std::string>,
// std::vector<std::string>, JSONValue::Object and any enumeration with a string EnumTable, kept
// as its raw value: a stored string that is not one of the cases reads as the default.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/enum_table.h"
#include "base/json_value.h"

namespace tindra {

template <class T>
struct SettingsKey {
  using Value = T;
  std::string_view name;
  T defaultValue;
  std::string_view description;  // one sentence for the Settings window
};

// The raw values of a string enumeration, in case order, with static storage for spans.
template <Tabled E>
inline constexpr auto enumRawValues = [] {
  std::array<std::string_view, EnumTable<E>::cases.size()> raws{};
  for (std::size_t i = 0; i < raws.size(); ++i) raws[i] = EnumTable<E>::cases[i].raw;
  return raws;
}();

template <class E>
concept StringEnumeration = Tabled<E> && std::is_same_v<EnumRaw<E>, std::string_view>;

// How each value type is kept in the preferences file. `decode` gives none for a stored value of
// the wrong type, which then reads as the key's default.
template <class T>
struct SettingsCodec;

template <>
struct SettingsCodec<bool> {
  static JSONValue encode(bool value) { return value; }
  static std::optional<bool> decode(const JSONValue& stored);
};

template <>
struct SettingsCodec<std::int64_t> {
  static JSONValue encode(std::int64_t value) { return static_cast<double>(value); }
  // Only whole numbers within ±2^53, which a double carries exactly.
  static std::optional<std::int64_t> decode(const JSONValue& stored);
};

template <>
struct SettingsCodec<double> {
  static JSONValue encode(double value) { return value; }
  static std::optional<double> decode(const JSONValue& stored);
};

template <>
struct SettingsCodec<std::string> {
  static JSONValue encode(const std::string& value) { return value; }
  static std::optional<std::string> decode(const JSONValue& stored);
};

template <>
struct SettingsCodec<std::optional<std::string>> {
  static JSONValue encode(const std::optional<std::string>& value);
  static std::optional<std::optional<std::string>> decode(const JSONValue& stored);
};

template <>
struct SettingsCodec<std::vector<std::string>> {
  static JSONValue encode(const std::vector<std::string>& value);
  // An array holding anything but strings is the wrong type as a whole.
  static std::optional<std::vector<std::string>> decode(const JSONValue& stored);
};

template <StringEnumeration E>
struct SettingsCodec<E> {
  static JSONValue encode(E value) { return std::string(rawValue(value)); }
  static std::optional<E> decode(const JSONValue& stored) {
    const std::string* raw = stored.asString();
    return raw ? enumFromRaw<E>(*raw) : std::nullopt;
  }
};

template <>
struct SettingsCodec<JSONValue::Object> {
  static JSONValue encode(const JSONValue::Object& value) { return value; }
  static std::optional<JSONValue::Object> decode(const JSONValue& stored);
};

}  // namespace tindra
