// SpectrumFeed: where the capture thread leaves its samples and the main thread reads the bars.
// The capture thread mixes each buffer to mono, appends it to the analyser and judges silence,
// all under the lock, and returns; the analysis itself runs on the main thread at the frame
// rate. Only a change between sound and silence is reported, from the capture thread.
#pragma once

#include <functional>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "nowplaying/silence_detector.h"
#include "nowplaying/spectrum_analyzer.h"

namespace tindra {

class SpectrumFeed {
 public:
  // Capture thread, on each change between sound and silence.
  using SilenceChanged = std::function<void(bool silent)>;

  SpectrumFeed(int bandCount, SilenceChanged onSilence);

  // Main thread: a fresh analyser for a capture at `sampleRate` Hz.
  void reset(double sampleRate);
  // Capture thread: interleaved float frames of `channels` channels, at `now` (monotonic s).
  void feed(std::span<const float> interleaved, int channels, double now);
  // Main thread: analyses the latest samples into `levels`; true when any bar moved visibly.
  bool analyze(std::span<float> levels);

  static SpectrumAnalyzer::Configuration configuration(int bandCount, double sampleRate);

 private:
  const int bandCount_;
  const SilenceChanged onSilence_;
  std::mutex mutex_;
  std::optional<SpectrumAnalyzer> analyzer_;
  std::vector<float> mono_;
  SilenceDetector silence_;
  bool silent_ = false;
};

}  // namespace tindra
