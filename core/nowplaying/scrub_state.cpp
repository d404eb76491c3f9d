#include "nowplaying/scrub_state.h"

#include <algorithm>
#include <cmath>

namespace tindra {

std::optional<double> ScrubState::displayPosition(std::optional<double> reported, bool isPlaying,
                                                  double now) const {
  if (dragPosition) return dragPosition;
  if (!pendingTarget) return reported;
  const double drift = isPlaying ? std::max(0.0, now - pendingSince) : 0;
  const double expected = *pendingTarget + drift;
  if (reported && std::abs(*reported - expected) <= matchWindow) return reported;
  if (now - pendingSince >= pendingExpiry) return reported;
  return expected;
}

void ScrubState::settle(std::optional<double> reported, bool isPlaying, double now) {
  if (!pendingTarget) return;
  const double age = now - pendingSince;
  const bool expired = age >= pendingExpiry;
  bool confirmed = false;
  if (reported) {
    const double drift = isPlaying && age >= 0 ? age : 0;
    confirmed = std::abs(*reported - (*pendingTarget + drift)) <= matchWindow;
  }
  if (confirmed || expired) pendingTarget.reset();
}

}  // namespace tindra
