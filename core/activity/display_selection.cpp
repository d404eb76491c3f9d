#include "activity/display_selection.h"

namespace tindra {
namespace {

constexpr std::string_view namedPrefix = "named:";

}  // namespace

DisplaySelection DisplaySelection::fromText(std::string_view text) {
  if (text == "main") return main();
  if (text == "builtIn") return builtIn();
  if (text.size() > namedPrefix.size() && text.starts_with(namedPrefix)) {
    return named(std::string(text.substr(namedPrefix.size())));
  }
  return all();
}

std::string DisplaySelection::text() const {
  switch (kind_) {
    case Kind::named:
      return std::string(namedPrefix) + name_;
    case Kind::all:
      return "all";
    case Kind::main:
      return "main";
    case Kind::builtIn:
      return "builtIn";
  }
  return "all";
}

}  // namespace tindra
