// PseudoWaveform: the bars drawn when no audio can be captured: a calm, deterministic motion
// computed from the time alone (a few slow waves per bar, lower bars a little taller), so
// the notch still looks alive while a track plays. Flat at rest while paused.
#pragma once

#include <span>

namespace tindra::PseudoWaveform {

inline constexpr float restingLevel = 0.08f;  // paused bars: a low, still line

// Fills `levels` (0 … 1, one per bar) for time `now` (seconds, any clock).
void levels(double now, bool isPlaying, std::span<float> levels);

}  // namespace tindra::PseudoWaveform
