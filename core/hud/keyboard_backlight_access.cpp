#include "hud/keyboard_backlight_access.h"

namespace tindra {

std::string_view name(KeyboardBacklightAccess access) {
  switch (access) {
    case KeyboardBacklightAccess::readWrite:
      return "readWrite";
    case KeyboardBacklightAccess::readOnly:
      return "readOnly";
    case KeyboardBacklightAccess::unavailable:
      return "unavailable";
  }
  return "unavailable";
}

}  // namespace tindra
