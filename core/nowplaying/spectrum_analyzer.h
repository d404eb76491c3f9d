// SpectrumAnalyzer: turns the latest `fftSize` mono samples into `bandCount` bar levels between
// 0 and 1 (Hann window, logarithmically spaced bands, decibels above a floor, bars that rise at
// once and fall smoothly). Runs on the audio thread: after construction nothing allocates.
// Not thread-safe; the capture session guards it with its lock.
#pragma once

#include <span>
#include <vector>

#include "nowplaying/fft.h"

namespace tindra {

class SpectrumAnalyzer {
 public:
  struct Configuration {
    int fftSize = 1024;  // a power of two, at least 4
    int bandCount = 64;
    double sampleRate = 48'000;        // Hz
    double minimumFrequency = 60;      // Hz, above 0
    double maximumFrequency = 12'000;  // Hz
    float floorDecibels = -60;         // below 0; maps to level 0, while 0 dB maps to 1
    float decay = 0.75f;               // share of the previous level a falling bar keeps
  };

  // Bins [lo, hi) of one band.
  struct BinRange {
    int lo = 0;
    int hi = 0;
    friend bool operator==(const BinRange&, const BinRange&) = default;
  };

  explicit SpectrumAnalyzer(const Configuration& configuration);

  // The bins of each band: contiguous, at least one each, none beyond bin fftSize/2.
  static std::vector<BinRange> bandBins(const Configuration& configuration);

  // Appends samples to the ring, keeping the latest `fftSize`.
  void append(std::span<const float> samples);
  // Analyses the ring (oldest sample first) and updates the levels, which it returns.
  std::span<const float> analyze();

  const Configuration& configuration() const { return configuration_; }
  const std::vector<BinRange>& bins() const { return bandBins_; }
  float windowGain() const { return windowGain_; }
  // Samples held so far, up to fftSize.
  int filled() const { return filled_; }
  std::span<const float> levels() const { return levels_; }

 private:
  void loadWindowedRing();
  float bandLevel(BinRange range, float scale) const;

  Configuration configuration_;
  FFT fft_;
  std::vector<float> window_;
  float windowGain_ = 0;
  std::vector<BinRange> bandBins_;
  std::vector<float> ring_;
  int writeIndex_ = 0;
  int filled_ = 0;
  std::vector<float> real_;
  std::vector<float> imaginary_;
  std::vector<float> levels_;
};

}  // namespace tindra
