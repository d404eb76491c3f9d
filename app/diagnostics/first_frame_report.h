// Start-to-first-frame for scripts/measure: when TINDRA_LAUNCHED_AT holds the launch time (in
// milliseconds since 1970, set just before the program starts), the first frame any window
// shows prints "first frame: N ms after launch" on standard output, once.
#pragma once

namespace tindra {

// Call once the windows exist; does nothing unless TINDRA_LAUNCHED_AT is set.
void reportFirstFrameIfAsked();

}  // namespace tindra
