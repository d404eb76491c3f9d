#include "media/spectrum_feed.h"

#include <algorithm>
#include <cmath>

#include "nowplaying/audio_downmix.h"

namespace tindra {

namespace {

// Mono frames mixed at a time: 85 ms at 48 kHz, more than one delivery.
constexpr std::size_t monoChunk = 4096;
// A bar must move this much for a new frame to be drawn: a third of a pixel on the ear's 14-pixel
// bars. Smaller moves cannot be seen and would only cost frames.
constexpr float visibleChange = 0.025f;

}  // namespace

SpectrumFeed::SpectrumFeed(int bandCount, SilenceChanged onSilence)
    : bandCount_(bandCount), onSilence_(std::move(onSilence)), mono_(monoChunk) {}

SpectrumAnalyzer::Configuration SpectrumFeed::configuration(int bandCount, double sampleRate) {
  SpectrumAnalyzer::Configuration configuration;
  configuration.fftSize = 1024;
  configuration.bandCount = bandCount;
  configuration.sampleRate = std::isfinite(sampleRate) && sampleRate > 0 ? sampleRate : 48'000;
  configuration.minimumFrequency = 60;
  configuration.maximumFrequency = 12'000;
  configuration.floorDecibels = -60;
  configuration.decay = 0.75f;
  return configuration;
}

void SpectrumFeed::reset(double sampleRate) {
  SpectrumAnalyzer analyzer(configuration(bandCount_, sampleRate));  // allocates: not under lock
  const std::lock_guard lock(mutex_);
  analyzer_.emplace(std::move(analyzer));
  silence_.reset();
  silent_ = false;
}

void SpectrumFeed::feed(std::span<const float> interleaved, int channels, double now) {
  if (channels < 1) return;
  const std::lock_guard lock(mutex_);
  if (!analyzer_) return;
  float peak = 0;
  const std::size_t step = monoChunk * static_cast<std::size_t>(channels);
  for (std::size_t at = 0; at < interleaved.size(); at += step) {
    const auto part = interleaved.subspan(at, std::min(step, interleaved.size() - at));
    const AudioDownmix::Result mixed = AudioDownmix::interleaved(part, channels, mono_);
    analyzer_->append(std::span(mono_).first(mixed.frames));
    peak = std::max(peak, mixed.peak);
  }
  const bool silent = silence_.update(peak, now);
  if (silent == silent_) return;
  silent_ = silent;
  if (onSilence_) onSilence_(silent);
}

bool SpectrumFeed::analyze(std::span<float> levels) {
  const std::lock_guard lock(mutex_);
  if (!analyzer_ || analyzer_->filled() == 0) return false;
  const std::span<const float> fresh = analyzer_->analyze();
  bool moved = false;
  for (std::size_t bar = 0; bar < levels.size() && bar < fresh.size(); ++bar) {
    moved = moved || std::abs(levels[bar] - fresh[bar]) >= visibleChange;
    levels[bar] = fresh[bar];
  }
  return moved;
}

}  // namespace tindra
