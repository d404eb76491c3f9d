// Key-press-to-frame latency for scripts/measure: when TINDRA_MEASURE_KEYS is set, each key press
// the indicator answers prints "key to frame: N.NN ms" on standard output: from the moment
// Tindra read the key event to the swap of the first frame a notch window draws after it.
#pragma once

namespace tindra {

class HudViewModel;

// Call once the windows exist; does nothing unless TINDRA_MEASURE_KEYS is set.
void reportKeyLatencyIfAsked(const HudViewModel& model);

}  // namespace tindra
