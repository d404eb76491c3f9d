// VolumeYieldPolicy: whether the volume keys go to the system (or BetterDisplay) instead of the
// notch: when the output's volume cannot be set, or BetterDisplay drives a display's speakers.
#pragma once

#include "hud/audio_transport.h"

namespace tindra {

struct VolumeYieldPolicy {
  VolumeYieldPolicy() = delete;

  // Pass `other` when no default output device is known.
  static bool shouldYield(AudioTransport transport, bool hasSettableVolume,
                          bool betterDisplayRunning);
};

}  // namespace tindra
