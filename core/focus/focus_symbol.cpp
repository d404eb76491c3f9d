#include "focus/focus_symbol.h"

namespace tindra {

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
