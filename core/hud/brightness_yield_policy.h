// BrightnessYieldPolicy: while BetterDisplay runs, its own brightness keys and indicator take
// over, so the notch leaves the brightness keys alone.
#pragma once

#include "hud/brightness_access.h"

namespace tindra {

struct BrightnessYieldPolicy {
  BrightnessYieldPolicy() = delete;

  // The access the key router should act on.
  static BrightnessAccess effectiveAccess(BrightnessAccess access, bool betterDisplayRunning);
};

}  // namespace tindra
