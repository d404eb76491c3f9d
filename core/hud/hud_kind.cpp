#include "hud/hud_kind.h"

namespace tindra {

std::string_view rawValue(HUDKind kind) {
  switch (kind) {
    case HUDKind::volume:
      return "volume";
    case HUDKind::brightness:
      return "brightness";
    case HUDKind::keyboardBacklight:
      return "keyboardBacklight";
  }
  return "volume";
}

std::optional<HUDKind> hudKindFromRaw(std::string_view raw) {
  for (HUDKind kind : allHUDKinds) {
    if (rawValue(kind) == raw) return kind;
  }
  return std::nullopt;
}

}  // namespace tindra
