// SilenceDetector: tells when captured audio has stayed quiet long enough to count as silence
// (the tapped app stopped producing sound, or the tap went deaf). Fed each buffer's peak with
// its time; holds no clock.
#pragma once

#include <optional>

namespace tindra {

struct SilenceDetector {
  static constexpr float defaultThreshold = 0.001f;  // −60 dBFS, the spectrum's floor
  static constexpr double defaultRequiredDuration = 2.0;

  float threshold = defaultThreshold;                 // peaks below this are quiet
  double requiredDuration = defaultRequiredDuration;  // seconds of quiet that make silence
  std::optional<double> silentSince;  // start of the current quiet run (monotonic seconds)

  // Takes one buffer's peak (absolute sample value) at `now`; true while the audio is silent.
  // A non-finite peak counts as sound, not silence.
  bool update(float peak, double now);
  // Forgets the quiet run, e.g. when capture restarts.
  void reset() { silentSince.reset(); }
};

}  // namespace tindra
