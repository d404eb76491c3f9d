// JSONValue: one JSON value (RFC 8259) as a tree. Numbers are always doubles; strings hold UTF-8.
// Objects keep one member per name, ordered by name, so written text is stable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tindra {

// Byte-wise order of member names (the order of std::string's own comparison), done inline:
// names are short and mostly differ early, where memcmp's call costs more than the comparing.
// Transparent, so members can be found by string_view or C string.
struct JSONNameOrder {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const noexcept {
    const std::size_t common = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t i = 0; i < common; ++i) {
      if (a[i] != b[i]) return static_cast<unsigned char>(a[i]) < static_cast<unsigned char>(b[i]);
    }
    return a.size() < b.size();
  }
};

class JSONValue {
 public:
  using Array = std::vector<JSONValue>;
  using Object = std::map<std::string, JSONValue, JSONNameOrder>;
  enum class Type : std::uint8_t { boolean, number, string, array, object, null };

  JSONValue() = default;  // null
  JSONValue(std::nullptr_t) {}
  JSONValue(bool value) : storage_(value) {}
  JSONValue(double value) : storage_(value) {}
  JSONValue(int value) : storage_(static_cast<double>(value)) {}
  JSONValue(long value) : storage_(static_cast<double>(value)) {}
  JSONValue(long long value) : storage_(static_cast<double>(value)) {}
  JSONValue(std::string value) : storage_(std::move(value)) {}
  JSONValue(std::string_view value) : storage_(std::string(value)) {}
  JSONValue(const char* value) : storage_(std::string(value)) {}
  JSONValue(Array value) : storage_(std::move(value)) {}
  JSONValue(Object value) : storage_(std::move(value)) {}

  Type type() const { return static_cast<Type>(storage_.index()); }
  bool isNull() const { return type() == Type::null; }

  // Typed access: the value when it has that type, otherwise nullptr.
  const bool* asBool() const { return std::get_if<bool>(&storage_); }
  const double* asNumber() const { return std::get_if<double>(&storage_); }
  const std::string* asString() const { return std::get_if<std::string>(&storage_); }
  const Array* asArray() const { return std::get_if<Array>(&storage_); }
  const Object* asObject() const { return std::get_if<Object>(&storage_); }
  Array* asArray() { return std::get_if<Array>(&storage_); }
  Object* asObject() { return std::get_if<Object>(&storage_); }

  // The member `name` of an object; nullptr when this is not an object or has no such member.
  const JSONValue* find(std::string_view name) const;

  // Structural equality; numbers compare as doubles (so NaN, which JSON cannot carry, never
  // equals).
  friend bool operator==(const JSONValue&, const JSONValue&) = default;

 private:
  // Index order matches Type.
  std::variant<bool, double, std::string, Array, Object, std::nullptr_t> storage_{nullptr};
};

}  // namespace tindra
