// JSONWriter: compact JSON text whose reading gives back an equal JSONValue. Numbers are written
// in their shortest round-trip form; integers without a fraction. Not-finite numbers, which JSON
// cannot carry, are written as null.
#pragma once

#include <string>

#include "base/json_value.h"

namespace tindra {

class JSONWriter {
 public:
  static std::string write(const JSONValue& value);
  // The same with two-space indentation and one member per line, for files people may read.
  static std::string writePretty(const JSONValue& value);
};

}  // namespace tindra
