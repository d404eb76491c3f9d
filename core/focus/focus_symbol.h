// FocusSymbol: the symbol a Focus chooses for itself in the Focus filter, stored by its raw string
// (the case name). Each has the system symbol name the notch draws.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class FocusSymbol { moon, person, briefcase, bed, car, book, gamecontroller, figure };

inline constexpr std::array<FocusSymbol, 8> allFocusSymbols{
    FocusSymbol::moon, FocusSymbol::person, FocusSymbol::briefcase,      FocusSymbol::bed,
    FocusSymbol::car,  FocusSymbol::book,   FocusSymbol::gamecontroller, FocusSymbol::figure};

std::string_view rawValue(FocusSymbol symbol);
// None for an unknown raw value.
std::optional<FocusSymbol> focusSymbolFromRaw(std::string_view raw);
// "moon.fill", "figure.mind.and.body", ...
std::string_view systemSymbolName(FocusSymbol symbol);

}  // namespace tindra
