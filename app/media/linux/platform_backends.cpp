// The live spectrum's capture on Linux: the player's own stream on the sound server, on the
// connection the volume shares.
#include "base/linux/pulse_connection.h"
#include "media/linux/pulse_process_tap_session.h"

namespace tindra {

std::unique_ptr<ProcessTapSession> ProcessTapSession::forPlatform(SharedBackends& shared) {
  return std::make_unique<PulseProcessTapSession>(PulseConnection::shared(shared));
}

}  // namespace tindra
