// PowerSourceValue: one loosely typed value of a power-source description, as the system hands it
// over (a boolean, an integer, a floating-point number, a string or a number object). Reading it
// as a boolean or an integer never fails loudly: a value of another type reads as missing.
// PowerSourceDescription: one power source, its values by key ("Current Capacity", "Type", ...).
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tindra {

class PowerSourceValue {
 public:
  // A boxed number of no fixed type; it reads as a boolean (non-zero) or as an integer.
  struct NumberObject {
    double value;
    friend bool operator==(const NumberObject&, const NumberObject&) = default;
  };

  PowerSourceValue(bool value) : storage_(value) {}
  PowerSourceValue(int value) : storage_(std::int64_t{value}) {}
  PowerSourceValue(long value) : storage_(std::int64_t{value}) {}
  PowerSourceValue(long long value) : storage_(std::int64_t{value}) {}
  PowerSourceValue(double value) : storage_(value) {}
  PowerSourceValue(std::string value) : storage_(std::move(value)) {}
  PowerSourceValue(std::string_view value) : storage_(std::string(value)) {}
  PowerSourceValue(const char* value) : storage_(std::string(value)) {}
  PowerSourceValue(NumberObject value) : storage_(value) {}

  // A boolean, or a finite number object's truth; otherwise none.
  std::optional<bool> boolean() const;
  // An integer, or a finite double or number object truncated toward zero; none for other types
  // and for numbers outside the 64-bit range.
  std::optional<std::int64_t> integer() const;
  // The text of a string value; otherwise nullptr.
  const std::string* string() const { return std::get_if<std::string>(&storage_); }

  friend bool operator==(const PowerSourceValue&, const PowerSourceValue&) = default;

 private:
  std::variant<bool, std::int64_t, double, std::string, NumberObject> storage_;
};

using PowerSourceDescription = std::map<std::string, PowerSourceValue, std::less<>>;

}  // namespace tindra
