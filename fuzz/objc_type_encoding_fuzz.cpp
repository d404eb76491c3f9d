// Method type encodings come from a private class at run time and may be anything.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "hud/objc_method_shape.h"
#include "hud/objc_type_encoding.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto codes = tindra::ObjCTypeEncoding::parse(text);
  if (codes) {
    std::size_t total = 0;
    for (const auto& code : *codes) {
      if (code.empty()) std::abort();
      total += code.size();
    }
    // Codes are pieces of the text, never more of it than there is.
    if (codes->empty() || total > size) std::abort();
  }
  const bool matchesAny = tindra::ObjCMethodShape::copyKeyboardBacklightIDs().matches(text) ||
                          tindra::ObjCMethodShape::isKeyboardBuiltIn().matches(text) ||
                          tindra::ObjCMethodShape::brightnessForKeyboard().matches(text) ||
                          tindra::ObjCMethodShape::setBrightnessForKeyboard().matches(text);
  if (matchesAny && !codes) std::abort();
  return 0;
}
