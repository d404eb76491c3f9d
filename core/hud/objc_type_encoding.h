// ObjCTypeEncoding: splits an Objective-C method type encoding ("B28@0:8f16Q20") into one type
// code per position: return type, receiver, selector, then the arguments. Frame offsets and the
// quoted class names of objects are dropped; qualifiers, pointers and whole structs, unions and
// arrays stay part of their position's code ("r*", "^{CGPoint=dd}").
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tindra {

struct ObjCTypeEncoding {
  ObjCTypeEncoding() = delete;

  // None when the text is empty or not a well-formed encoding (unknown code, unbalanced
  // brackets, unterminated quote, a minus sign without digits).
  static std::optional<std::vector<std::string>> parse(std::string_view encoding);
};

}  // namespace tindra
