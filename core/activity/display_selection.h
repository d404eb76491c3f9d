// DisplaySelection: which displays the user wants a notch on, stored in the settings as text
// ("all", "main", "builtIn" or "named:" and a display name). Reading never fails: text that
// names no selection reads as all.
#pragma once

#include <string>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

class DisplaySelection {
 public:
  enum class Kind { named, all, main, builtIn };

  static DisplaySelection named(std::string name) { return {Kind::named, std::move(name)}; }
  static DisplaySelection all() { return {Kind::all, {}}; }
  static DisplaySelection main() { return {Kind::main, {}}; }
  static DisplaySelection builtIn() { return {Kind::builtIn, {}}; }

  // "main", "builtIn", "named:<name>" with a non-empty name; anything else is all.
  static DisplaySelection fromText(std::string_view text);
  std::string text() const;

  Kind kind() const { return kind_; }
  // The display's name for `named`; empty for the other kinds.
  const std::string& name() const { return name_; }

  friend bool operator==(const DisplaySelection&, const DisplaySelection&) = default;

 private:
  DisplaySelection(Kind kind, std::string name) : kind_(kind), name_(std::move(name)) {}

  Kind kind_;
  std::string name_;
};

template <>
struct EnumTable<DisplaySelection::Kind> {
  using E = DisplaySelection::Kind;
  static constexpr std::array cases{EnumCase{E::named, "named"}, EnumCase{E::all, "all"},
                                    EnumCase{E::main, "main"}, EnumCase{E::builtIn, "builtIn"}};
};

}  // namespace tindra
