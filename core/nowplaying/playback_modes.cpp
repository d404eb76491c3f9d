#include "nowplaying/playback_modes.h"

namespace tindra {

// The codes are the case order plus one, for both modes.
int adapterCode(ShuffleMode mode) {
  return static_cast<int>(mode) + 1;
}
int adapterCode(RepeatMode mode) {
  return static_cast<int>(mode) + 1;
}

}  // namespace tindra
