// AudioDownmix: mixes captured float audio of any channel count to mono for the analyser, from
// interleaved buffers (L R L R …) or planar ones (one buffer per channel), and measures the
// peak on the way. Non-finite samples count as 0, so a glitch cannot poison the spectrum.
#pragma once

#include <cstddef>
#include <span>

namespace tindra::AudioDownmix {

struct Result {
  std::size_t frames = 0;  // mono samples written
  float peak = 0;          // largest absolute input sample
};

// Mixes `channelCount` interleaved channels into `mono` (the mean of each frame), as many whole
// frames as both hold; nothing for a channel count below 1.
Result interleaved(std::span<const float> samples, int channelCount, std::span<float> mono);

// Mixes one buffer per channel into `mono`, as many frames as the shortest channel and `mono`
// hold; nothing without channels.
Result planar(std::span<const std::span<const float>> channels, std::span<float> mono);

}  // namespace tindra::AudioDownmix
