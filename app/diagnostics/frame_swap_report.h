// Frame times for scripts/measure: when TINDRA_MEASURE_FRAMES is set, every frame a notch window
// puts on screen prints "frame swap: N" on standard output, N being the wall-clock microseconds
// since 1970 at the swap, so the script can time what it does from outside (moving the pointer
// onto the notch) to the first frame that follows.
#pragma once

namespace tindra {

// Call once the windows exist; does nothing unless TINDRA_MEASURE_FRAMES is set.
void reportFrameSwapsIfAsked();

}  // namespace tindra
