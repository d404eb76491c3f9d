// FocusPresentation: what the notch shows for Focus, from the filter state and whether the system
// reports some Focus on. The filter's own name and symbol win; a Focus the system reports without
// a filter shows as an unnamed moon.
#pragma once

#include <optional>
#include <string>

#include "focus/focus_filter_state.h"
#include "focus/focus_symbol.h"

namespace tindra {

struct FocusPresentation {
  // Seconds the Focus notice stays in the notch when a Focus starts or changes.
  static constexpr double noticeDuration = 2.5;

  struct Shown {
    std::optional<std::string> name;  // none: "a Focus", without a name
    FocusSymbol symbol = FocusSymbol::moon;
    friend bool operator==(const Shown&, const Shown&) = default;
  };

  // The active filter's name (none when empty) and symbol; else an unnamed moon when the system
  // reports a Focus on; else nothing.
  static std::optional<Shown> shown(const FocusFilterState& filter, bool systemFocused);
  // What the compact indicator keeps: `shown` while `keepsIndicator` is on, else nothing.
  static std::optional<Shown> indicator(const std::optional<Shown>& shown, bool keepsIndicator);
};

}  // namespace tindra
