// Notification-to-screen latency for scripts/measure: when TINDRA_MEASURE_NOTICES is set, each
// call or message that comes to the notch prints "notice on screen: N" on standard output, N
// being the wall-clock microseconds since 1970 at the swap of the first frame drawn after it, to
// be set against the moment the script sent the notification.
#pragma once

namespace tindra {

class ActivityCenter;

// Call once the windows exist; does nothing unless TINDRA_MEASURE_NOTICES is set.
void reportNoticeLatencyIfAsked(const ActivityCenter& activities);

}  // namespace tindra
