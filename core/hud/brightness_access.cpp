#include "hud/brightness_access.h"

namespace tindra {

std::string_view name(BrightnessAccess access) {
  switch (access) {
    case BrightnessAccess::readWrite:
      return "readWrite";
    case BrightnessAccess::readOnly:
      return "readOnly";
    case BrightnessAccess::unavailable:
      return "unavailable";
  }
  return "unavailable";
}

}  // namespace tindra
