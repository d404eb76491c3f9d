#include "hud/brightness_yield_policy.h"

namespace tindra {

BrightnessAccess BrightnessYieldPolicy::effectiveAccess(BrightnessAccess access,
                                                        bool betterDisplayRunning) {
  return betterDisplayRunning ? BrightnessAccess::unavailable : access;
}

}  // namespace tindra
