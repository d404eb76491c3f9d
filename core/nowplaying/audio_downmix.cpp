#include "nowplaying/audio_downmix.h"

#include <algorithm>
#include <cmath>

namespace tindra::AudioDownmix {
namespace {

float finite(float sample) {
  return std::isfinite(sample) ? sample : 0.0f;
}

}  // namespace

Result interleaved(std::span<const float> samples, int channelCount, std::span<float> mono) {
  if (channelCount < 1) return {};
  const auto channels = static_cast<std::size_t>(channelCount);
  const std::size_t frames = std::min(samples.size() / channels, mono.size());
  const float share = 1.0f / static_cast<float>(channelCount);
  float peak = 0;
  for (std::size_t frame = 0; frame < frames; ++frame) {
    float sum = 0;
    for (std::size_t channel = 0; channel < channels; ++channel) {
      const float sample = finite(samples[frame * channels + channel]);
      peak = std::max(peak, std::abs(sample));
      sum += sample;
    }
    mono[frame] = sum * share;
  }
  return {frames, peak};
}

Result planar(std::span<const std::span<const float>> channels, std::span<float> mono) {
  if (channels.empty()) return {};
  std::size_t frames = mono.size();
  for (const auto& channel : channels) frames = std::min(frames, channel.size());
  std::fill_n(mono.begin(), frames, 0.0f);
  float peak = 0;
  for (const auto& channel : channels) {
    for (std::size_t frame = 0; frame < frames; ++frame) {
      const float sample = finite(channel[frame]);
      peak = std::max(peak, std::abs(sample));
      mono[frame] += sample;
    }
  }
  const float share = 1.0f / static_cast<float>(channels.size());
  for (std::size_t frame = 0; frame < frames; ++frame) mono[frame] *= share;
  return {frames, peak};
}

}  // namespace tindra::AudioDownmix
