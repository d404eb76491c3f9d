// ScrubState: the progress bar's knob while the user drags it and just after, so the bar shows
// where the user let go until the player confirms the seek (or 3 seconds pass).
#pragma once

#include <optional>

namespace tindra {

struct ScrubState {
  static constexpr double matchWindow = 1.5;    // seconds a report may differ and still confirm
  static constexpr double pendingExpiry = 3.0;  // seconds a committed target is trusted

  std::optional<double> dragPosition;   // seconds, while dragging
  std::optional<double> pendingTarget;  // seconds, committed and sent as a seek
  double pendingSince = 0;              // seconds since 1970, when the target was committed

  // What the bar shows given the source's `reported` position at `now`.
  std::optional<double> displayPosition(std::optional<double> reported, bool isPlaying,
                                        double now) const;

  // Forgets the pending target once a report confirms it or it expires; run on every snapshot.
  void settle(std::optional<double> reported, bool isPlaying, double now);

  friend bool operator==(const ScrubState&, const ScrubState&) = default;
};

}  // namespace tindra
