#include "hud/volume_yield_policy.h"

namespace tindra {

bool VolumeYieldPolicy::shouldYield(AudioTransport transport, bool hasSettableVolume,
                                    bool betterDisplayRunning) {
  if (hasSettableVolume && betterDisplayRunning) {
    return transport == AudioTransport::hdmi || transport == AudioTransport::displayPort;
  }
  return !hasSettableVolume;
}

}  // namespace tindra
