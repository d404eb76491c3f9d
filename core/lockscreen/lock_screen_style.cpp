#include "lockscreen/lock_screen_style.h"

namespace tindra {

std::string_view rawValue(LockScreenStyle style) {
  switch (style) {
    case LockScreenStyle::clear:
      return "clear";
    case LockScreenStyle::lightFrost:
      return "lightFrost";
    case LockScreenStyle::frosted:
      return "frosted";
  }
  return "frosted";
}

std::optional<LockScreenStyle> lockScreenStyleFromRaw(std::string_view raw) {
  for (LockScreenStyle style : allLockScreenStyles) {
    if (rawValue(style) == raw) return style;
  }
  return std::nullopt;
}

}  // namespace tindra
