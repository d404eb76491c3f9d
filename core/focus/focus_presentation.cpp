#include "focus/focus_presentation.h"

namespace tindra {

std::optional<FocusPresentation::Shown> FocusPresentation::shown(const FocusFilterState& filter,
                                                                 bool systemFocused) {
  if (filter.isActive) {
    return Shown{filter.name.empty() ? std::nullopt : std::optional(filter.name), filter.symbol};
  }
  if (systemFocused) return Shown{std::nullopt, FocusSymbol::moon};
  return std::nullopt;
}

std::optional<FocusPresentation::Shown> FocusPresentation::indicator(
    const std::optional<Shown>& shown, bool keepsIndicator) {
  return keepsIndicator ? shown : std::nullopt;
}

}  // namespace tindra
