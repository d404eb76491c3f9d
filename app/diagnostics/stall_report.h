// Main-thread stalls for scripts/measure: when TINDRA_MEASURE_STALLS is set, a 1 ms heartbeat
// timer runs on the main thread, and each second prints "longest stall: N.NN ms", the worst
// lateness of a beat in that second: how long the event loop was kept from running. The
// heartbeat itself wakes the program a thousand times a second, so it is only for this measure.
#pragma once

namespace tindra {

// Call once the event loop is about to run; does nothing unless TINDRA_MEASURE_STALLS is set.
void reportStallsIfAsked();

}  // namespace tindra
