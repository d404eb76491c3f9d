// FocusFilterState: what the Focus filter last wrote about the Focus that carries it, kept as JSON
// text under the `focusFilterState` setting. The name is always normalised: one line, trimmed, at
// most 40 characters as a person counts them (grapheme clusters). Reading never fails: text that
// is missing, not UTF-8, not the expected JSON or names an unknown symbol reads as `inactive`.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "focus/focus_symbol.h"

namespace tindra {

struct FocusFilterState {
  static constexpr std::size_t maxNameLength = 40;  // grapheme clusters

  bool isActive = false;
  std::string name;
  FocusSymbol symbol = FocusSymbol::moon;
  double updatedAt = 0;  // seconds since 1970 of the write

  // The `inactive` state: not active, no name, moon, time 0.
  FocusFilterState() = default;
  // `name` is normalised; none is the empty name. Malformed UTF-8 in it becomes U+FFFD.
  FocusFilterState(bool isActive, std::optional<std::string_view> name, FocusSymbol symbol,
                   double updatedAt);
  static FocusFilterState inactive() { return FocusFilterState(); }

  // Line breaks (CR LF as one) each become a space, white space is trimmed at both ends, and at
  // most the first 40 grapheme clusters are kept. The cut comes after the trim, so a name cut
  // just after a space keeps that space (and loses it if normalised once more).
  static std::string normalizedName(std::string_view name);

  // {"isActive":…,"name":…,"symbol":…,"updatedAt":…}. A non-finite time writes text that reads
  // back as `inactive`.
  std::string encoded() const;
  // All four members are required with their JSON types; other members are ignored. The name is
  // normalised again, since anything may have written the text.
  static FocusFilterState decode(std::optional<std::string_view> text);

  friend bool operator==(const FocusFilterState&, const FocusFilterState&) = default;
};

}  // namespace tindra
