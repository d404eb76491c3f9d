// FocusSymbol: the symbol a Focus chooses for itself in the Focus filter, stored by its raw string
// (the case name). Each has the system symbol name the notch draws.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class FocusSymbol { moon, person, briefcase, bed, car, book, gamecontroller, figure };

template <>
struct EnumTable<FocusSymbol> {
  static constexpr std::array cases{EnumCase{FocusSymbol::moon, "moon"},
                                    EnumCase{FocusSymbol::person, "person"},
                                    EnumCase{FocusSymbol::briefcase, "briefcase"},
                                    EnumCase{FocusSymbol::bed, "bed"},
                                    EnumCase{FocusSymbol::car, "car"},
                                    EnumCase{FocusSymbol::book, "book"},
                                    EnumCase{FocusSymbol::gamecontroller, "gamecontroller"},
                                    EnumCase{FocusSymbol::figure, "figure"}};
};

// "moon.fill", "figure.mind.and.body", ...
std::string_view systemSymbolName(FocusSymbol symbol);

}  // namespace tindra
