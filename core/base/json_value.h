// JSONValue: one JSON value (RFC 8259) as a tree. Numbers are always doubles; strings hold UTF-8.
// Objects keep one member per name, ordered by name, so written text is stable. An object is a
// flat vector of members sorted by name (JSONObject): small objects, the common case, cost one
// allocation instead of one per member, and are found by binary search.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include "base/enum_table.h"

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

class JSONValue;

// The members of a JSON object, sorted by name, one per name: the API of the std::map it
// replaces, as far as this code base uses it. Readers append members in the order they arrive
// and sort once at the end, so a huge object in reverse order costs n log n, not n squared.
class JSONObject {
 public:
  using Member = std::pair<std::string, JSONValue>;
  using Members = std::vector<Member>;
  using iterator = Members::iterator;
  using const_iterator = Members::const_iterator;
  using value_type = Member;

  JSONObject() = default;
  // A repeated name: the last one wins.
  JSONObject(std::initializer_list<Member> members);

  // (Defined after JSONValue, which members need complete.)
  iterator begin();
  iterator end();
  const_iterator begin() const;
  const_iterator end() const;
  std::size_t size() const;
  bool empty() const;
  void clear();

  iterator lower_bound(std::string_view name);
  const_iterator lower_bound(std::string_view name) const;
  iterator find(std::string_view name);
  const_iterator find(std::string_view name) const;
  bool contains(std::string_view name) const;
  // The member `name`; throws std::out_of_range when there is none.
  const JSONValue& at(std::string_view name) const;
  std::size_t count(std::string_view name) const { return contains(name) ? 1 : 0; }

  // The member `name`, added as null when missing.
  JSONValue& operator[](std::string_view name);
  // Adds `name` unless present (then nothing changes), as std::map::emplace does.
  template <class Value>
  std::pair<iterator, bool> emplace(std::string_view name, Value&& value);
  // Adds `name` or replaces its value.
  template <class Value>
  std::pair<iterator, bool> insert_or_assign(std::string_view name, Value&& value);
  std::size_t erase(std::string_view name);
  iterator erase(const_iterator position);

  // For readers: becomes the members of `arrived`, given in any order, sorted by name with the
  // last of each repeated name kept, in one allocation. `arrived` is left with moved-from
  // members.
  void adopt(Members& arrived);

  friend bool operator==(const JSONObject& a, const JSONObject& b);

 private:
  Members members_;
};

class JSONValue {
 public:
  using Array = std::vector<JSONValue>;
  using Object = JSONObject;
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

template <>
struct EnumTable<JSONValue::Type> {
  using E = JSONValue::Type;
  static constexpr std::array cases{EnumCase{E::boolean, "boolean"}, EnumCase{E::number, "number"},
                                    EnumCase{E::string, "string"},   EnumCase{E::array, "array"},
                                    EnumCase{E::object, "object"},   EnumCase{E::null, "null"}};
};

inline bool operator==(const JSONObject& a, const JSONObject& b) {
  return a.members_ == b.members_;
}
inline JSONObject::iterator JSONObject::begin() {
  return members_.begin();
}
inline JSONObject::iterator JSONObject::end() {
  return members_.end();
}
inline JSONObject::const_iterator JSONObject::begin() const {
  return members_.begin();
}
inline JSONObject::const_iterator JSONObject::end() const {
  return members_.end();
}
inline std::size_t JSONObject::size() const {
  return members_.size();
}
inline bool JSONObject::empty() const {
  return members_.empty();
}
inline void JSONObject::clear() {
  members_.clear();
}
inline bool JSONObject::contains(std::string_view name) const {
  return find(name) != end();
}
inline const JSONValue& JSONObject::at(std::string_view name) const {
  const const_iterator found = find(name);
  if (found == end()) throw std::out_of_range("no JSON member named " + std::string(name));
  return found->second;
}
inline JSONObject::iterator JSONObject::erase(const_iterator position) {
  return members_.erase(position);
}

inline JSONObject::iterator JSONObject::lower_bound(std::string_view name) {
  return std::lower_bound(members_.begin(), members_.end(), name,
                          [](const Member& member, std::string_view key) {
                            return JSONNameOrder()(member.first, key);
                          });
}

inline JSONObject::const_iterator JSONObject::lower_bound(std::string_view name) const {
  return const_cast<JSONObject*>(this)->lower_bound(name);
}

inline JSONObject::iterator JSONObject::find(std::string_view name) {
  const iterator found = lower_bound(name);
  return found != members_.end() && found->first == name ? found : members_.end();
}

inline JSONObject::const_iterator JSONObject::find(std::string_view name) const {
  return const_cast<JSONObject*>(this)->find(name);
}

inline JSONValue& JSONObject::operator[](std::string_view name) {
  return emplace(name, nullptr).first->second;
}

template <class Value>
std::pair<JSONObject::iterator, bool> JSONObject::emplace(std::string_view name, Value&& value) {
  const iterator at = lower_bound(name);
  if (at != members_.end() && at->first == name) return {at, false};
  return {members_.emplace(at, std::piecewise_construct, std::forward_as_tuple(name),
                           std::forward_as_tuple(std::forward<Value>(value))),
          true};
}

template <class Value>
std::pair<JSONObject::iterator, bool> JSONObject::insert_or_assign(std::string_view name,
                                                                   Value&& value) {
  const iterator at = lower_bound(name);
  if (at != members_.end() && at->first == name) {
    at->second = JSONValue(std::forward<Value>(value));
    return {at, false};
  }
  return {members_.emplace(at, std::piecewise_construct, std::forward_as_tuple(name),
                           std::forward_as_tuple(std::forward<Value>(value))),
          true};
}

inline std::size_t JSONObject::erase(std::string_view name) {
  const iterator found = find(name);
  if (found == members_.end()) return 0;
  members_.erase(found);
  return 1;
}

}  // namespace tindra
