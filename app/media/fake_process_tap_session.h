// FakeProcessTapSession: a capture for tests of the spectrum's states. It remembers whether it
// runs and for whom, and lets the test start it, refuse it and hand it samples.
#pragma once

#include <cmath>
#include <vector>

#include "media/process_tap_session.h"

namespace tindra {

class FakeProcessTapSession final : public ProcessTapSession {
 public:
  using ProcessTapSession::ProcessTapSession;

  void start(const SpectrumTarget& target, Samples samples) override {
    running = true;
    target_ = target;
    samples_ = std::move(samples);
    ++starts;
  }
  void stop() override { running = false; }

  // `seconds` of a full-scale sine of `frequency` Hz, mono, at 48 kHz.
  void play(double frequency, double seconds, float amplitude = 1.0f) {
    std::vector<float> tone(static_cast<std::size_t>(48'000 * seconds));
    for (std::size_t i = 0; i < tone.size(); ++i) {
      tone[i] =
          amplitude * static_cast<float>(std::sin(2 * 3.14159265358979 * frequency * i / 48'000));
    }
    if (running && samples_) samples_(tone, 1);
  }

  bool running = false;
  int starts = 0;
  const SpectrumTarget& target() const { return target_; }

 private:
  SpectrumTarget target_;
  Samples samples_;
};

}  // namespace tindra
