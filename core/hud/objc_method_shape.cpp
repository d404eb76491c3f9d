#include "hud/objc_method_shape.h"

#include "hud/objc_type_encoding.h"

namespace tindra {

namespace {

using CodeSet = ObjCMethodShape::CodeSet;

const CodeSet receiver{"@"};
const CodeSet selector{":"};
const CodeSet boolean{"B", "c"};
const CodeSet floatingPoint{"f"};
const CodeSet identifier{"Q", "q", "L", "l"};
const CodeSet identifierList{"@", "^Q", "^q"};

}  // namespace

bool ObjCMethodShape::matches(std::string_view encoding) const {
  const auto codes = ObjCTypeEncoding::parse(encoding);
  if (!codes || codes->size() != positions.size()) return false;
  for (std::size_t i = 0; i < positions.size(); ++i) {
    if (!positions[i].contains((*codes)[i])) return false;
  }
  return true;
}

ObjCMethodShape ObjCMethodShape::copyKeyboardBacklightIDs() {
  return {{identifierList, receiver, selector}};
}

ObjCMethodShape ObjCMethodShape::isKeyboardBuiltIn() {
  return {{boolean, receiver, selector, identifier}};
}

ObjCMethodShape ObjCMethodShape::brightnessForKeyboard() {
  return {{floatingPoint, receiver, selector, identifier}};
}

ObjCMethodShape ObjCMethodShape::setBrightnessForKeyboard() {
  return {{boolean, receiver, selector, floatingPoint, identifier}};
}

}  // namespace tindra
