#include "focus/focus_symbol.h"

namespace tindra {

std::string_view rawValue(FocusSymbol symbol) {
  switch (symbol) {
    case FocusSymbol::moon:
      return "moon";
    case FocusSymbol::person:
      return "person";
    case FocusSymbol::briefcase:
      return "briefcase";
    case FocusSymbol::bed:
      return "bed";
    case FocusSymbol::car:
      return "car";
    case FocusSymbol::book:
      return "book";
    case FocusSymbol::gamecontroller:
      return "gamecontroller";
    case FocusSymbol::figure:
      return "figure";
  }
  return "moon";
}

std::optional<FocusSymbol> focusSymbolFromRaw(std::string_view raw) {
  for (FocusSymbol symbol : allFocusSymbols) {
    if (rawValue(symbol) == raw) return symbol;
  }
  return std::nullopt;
}

std::string_view systemSymbolName(FocusSymbol symbol) {
  switch (symbol) {
    case FocusSymbol::moon:
      return "moon.fill";
    case FocusSymbol::person:
      return "person.fill";
    case FocusSymbol::briefcase:
      return "briefcase.fill";
    case FocusSymbol::bed:
      return "bed.double.fill";
    case FocusSymbol::car:
      return "car.fill";
    case FocusSymbol::book:
      return "book.fill";
    case FocusSymbol::gamecontroller:
      return "gamecontroller.fill";
    case FocusSymbol::figure:
      return "figure.mind.and.body";
  }
  return "moon.fill";
}

}  // namespace tindra
