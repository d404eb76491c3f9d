#include "base/json_value.h"

namespace tindra {

const JSONValue* JSONValue::find(std::string_view name) const {
  const Object* object = asObject();
  if (object == nullptr) return nullptr;
  auto it = object->find(name);
  return it == object->end() ? nullptr : &it->second;
}

}  // namespace tindra
