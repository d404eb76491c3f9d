#include "nowplaying/spectrum_analyzer.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace tindra {
namespace {

constexpr float minimumMagnitude = 1e-9f;  // −180 dB: silence, far below any floor

std::vector<float> hannWindow(int size) {
  std::vector<float> window(static_cast<std::size_t>(size));
  for (int n = 0; n < size; ++n) {
    window[static_cast<std::size_t>(n)] =
        static_cast<float>(0.5 - 0.5 * std::cos(2 * std::numbers::pi * n / (size - 1)));
  }
  return window;
}

}  // namespace

SpectrumAnalyzer::SpectrumAnalyzer(const Configuration& configuration)
    : configuration_(configuration),
      fft_(configuration.fftSize),
      window_(hannWindow(configuration.fftSize)),
      bandBins_(bandBins(configuration)),
      ring_(static_cast<std::size_t>(configuration.fftSize)),
      real_(ring_.size()),
      imaginary_(ring_.size()),
      levels_(bandBins_.size()) {
  windowGain_ = std::accumulate(window_.begin(), window_.end(), 0.0f) /
                static_cast<float>(configuration.fftSize);
}

std::vector<SpectrumAnalyzer::BinRange> SpectrumAnalyzer::bandBins(
    const Configuration& configuration) {
  const int bandCount = std::max(0, configuration.bandCount);
  const double binWidth = configuration.sampleRate / configuration.fftSize;
  const int half = configuration.fftSize / 2;
  const double logLow = std::log(configuration.minimumFrequency);
  const double logHigh =
      std::log(std::min(configuration.sampleRate / 2, configuration.maximumFrequency));
  std::vector<BinRange> bins;
  bins.reserve(static_cast<std::size_t>(bandCount));
  int lo = std::max(1, static_cast<int>(std::floor(configuration.minimumFrequency / binWidth)));
  for (int k = 1; k <= bandCount; ++k) {
    const double frequency = std::exp(logLow + (logHigh - logLow) * k / bandCount);
    const int edge = static_cast<int>(std::ceil(frequency / binWidth));
    const int hi = std::min(half + 1, std::max(lo + 1, std::min(half, edge)));
    bins.push_back({lo, hi});
    lo = std::min(std::max(lo + 1, std::min(half, edge)), half);
  }
  return bins;
}

void SpectrumAnalyzer::append(std::span<const float> samples) {
  const auto size = static_cast<std::size_t>(configuration_.fftSize);
  if (samples.size() > size) samples = samples.last(size);
  for (const float sample : samples) {
    ring_[static_cast<std::size_t>(writeIndex_)] = sample;
    writeIndex_ = (writeIndex_ + 1) % configuration_.fftSize;
  }
  filled_ = static_cast<int>(std::min(size, static_cast<std::size_t>(filled_) + samples.size()));
}

// real[i] = ring[(writeIndex + i) mod size] × window[i], as two runs without a modulo.
void SpectrumAnalyzer::loadWindowedRing() {
  const auto size = ring_.size();
  const auto start = static_cast<std::size_t>(writeIndex_);
  const std::size_t firstRun = size - start;
  for (std::size_t i = 0; i < firstRun; ++i) real_[i] = ring_[start + i] * window_[i];
  for (std::size_t i = firstRun; i < size; ++i) real_[i] = ring_[i - firstRun] * window_[i];
}

// The loudest bin of the band in decibels above the floor, 0 … 1. Bins are compared by squared
// magnitude so the band costs one square root and one logarithm.
float SpectrumAnalyzer::bandLevel(BinRange range, float scale) const {
  float loudest = 0;
  for (int bin = range.lo; bin < range.hi; ++bin) {
    const auto i = static_cast<std::size_t>(bin);
    loudest = std::max(loudest, real_[i] * real_[i] + imaginary_[i] * imaginary_[i]);
  }
  const float magnitude = std::max(scale * std::sqrt(loudest), minimumMagnitude);
  const float floor = configuration_.floorDecibels;
  const float level = std::min(1.0f, (20 * std::log10(magnitude) - floor) / -floor);
  return std::max(level, 0.0f);
}

std::span<const float> SpectrumAnalyzer::analyze() {
  loadWindowedRing();
  fft_.transformReal(real_, imaginary_);
  const float scale = 2 / (windowGain_ * static_cast<float>(configuration_.fftSize));
  const float decay = configuration_.decay;
  for (std::size_t band = 0; band < bandBins_.size(); ++band) {
    const float level = bandLevel(bandBins_[band], scale);
    const float previous = levels_[band];
    levels_[band] = level >= previous ? level : previous * decay + level * (1 - decay);
  }
  return levels_;
}

}  // namespace tindra
