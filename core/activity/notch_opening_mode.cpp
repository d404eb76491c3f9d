#include "activity/notch_opening_mode.h"

namespace tindra {

std::string_view rawValue(NotchOpeningMode mode) {
  switch (mode) {
    case NotchOpeningMode::hover:
      return "hover";
    case NotchOpeningMode::click:
      return "click";
    case NotchOpeningMode::pressAndHold:
      return "pressAndHold";
  }
  return "hover";
}

std::optional<NotchOpeningMode> notchOpeningModeFromRaw(std::string_view raw) {
  for (NotchOpeningMode mode : allNotchOpeningModes) {
    if (rawValue(mode) == raw) return mode;
  }
  return std::nullopt;
}

}  // namespace tindra
