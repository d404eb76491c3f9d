// One table per enumeration: every case with its raw value (a string, or for a few enumerations
// a number) and its name for logs. An enumeration gets its table by specialising EnumTable, and
// with it the same four operations as every other: rawValue, enumFromRaw, name and allCases.
//
//   template <> struct EnumTable<HUDTint> {
//     static constexpr std::array cases{EnumCase{HUDTint::white, "white"}, ...};
//   };
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace tindra {

template <class E, class Raw = std::string_view>
struct EnumCase {
  constexpr EnumCase(E value, Raw raw, std::string_view name = {})
      : value(value), raw(raw), name(name) {}

  E value;
  Raw raw;
  std::string_view name;  // empty for a string raw value, which is then the name too
};

template <class E>
EnumCase(E, const char*) -> EnumCase<E, std::string_view>;
template <class E>
EnumCase(E, const char*, const char*) -> EnumCase<E, std::string_view>;
template <class E>
EnumCase(E, int, const char*) -> EnumCase<E, int>;

// Specialised next to each enumeration, with `static constexpr std::array cases{...}` listing
// every case once, in declaration order.
template <class E>
struct EnumTable;

template <class E>
concept Tabled = requires {
  EnumTable<E>::cases;
};

template <Tabled E>
using EnumRaw = decltype(EnumTable<E>::cases[0].raw);

namespace detail {

template <class E>
constexpr const auto& caseOf(E value) {
  for (const auto& entry : EnumTable<E>::cases) {
    if (entry.value == value) return entry;
  }
  return EnumTable<E>::cases[0];  // only for values outside the enumeration
}

template <class E, class Raw>
constexpr std::string_view nameOf(const EnumCase<E, Raw>& entry) {
  if constexpr (std::is_same_v<Raw, std::string_view>) {
    return entry.name.empty() ? entry.raw : entry.name;
  } else {
    return entry.name;
  }
}

}  // namespace detail

// The case's raw value, as stored or sent.
template <Tabled E>
constexpr EnumRaw<E> rawValue(E value) {
  return detail::caseOf(value).raw;
}

// The case whose raw value is `raw`; none for anything else.
template <Tabled E>
constexpr std::optional<E> enumFromRaw(const EnumRaw<E>& raw) {
  for (const auto& entry : EnumTable<E>::cases) {
    if (entry.raw == raw) return entry.value;
  }
  return std::nullopt;
}

// The case name, for logs and diagnostics ("nowPlaying").
template <Tabled E>
constexpr std::string_view name(E value) {
  return detail::nameOf(detail::caseOf(value));
}

// Every case, in declaration order.
template <Tabled E>
constexpr auto allCases() {
  constexpr auto& cases = EnumTable<E>::cases;
  std::array<E, cases.size()> all{};
  for (std::size_t i = 0; i < cases.size(); ++i) all[i] = cases[i].value;
  return all;
}

}  // namespace tindra
