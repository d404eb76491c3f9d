#include "nowplaying/pseudo_waveform.h"

#include <algorithm>
#include <cmath>

namespace tindra::PseudoWaveform {

void levels(double now, bool isPlaying, std::span<float> levels) {
  const std::size_t count = levels.size();
  for (std::size_t bar = 0; bar < count; ++bar) {
    if (!isPlaying || !std::isfinite(now)) {
      levels[bar] = restingLevel;
      continue;
    }
    const double position = count > 1 ? static_cast<double>(bar) / (count - 1) : 0.0;
    // Incommensurate speeds and per-bar phases keep neighbours from moving in step.
    const double b = static_cast<double>(bar);
    const double motion = 0.5 * std::sin(now * 2.1 + b * 1.7) +
                          0.3 * std::sin(now * 3.7 + b * 0.9) + 0.2 * std::sin(now * 5.3 + b * 2.3);
    const double envelope = 0.75 - 0.35 * position;  // bass bars reach higher
    const double level = restingLevel + envelope * (0.5 + 0.5 * motion);
    levels[bar] = static_cast<float>(std::clamp(level, 0.0, 1.0));
  }
}

}  // namespace tindra::PseudoWaveform
