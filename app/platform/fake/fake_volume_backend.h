// FakeVolumeBackend: an invented output at 60 % for the demo and tests, only when TINDRA_FAKE
// names "hud". Writes take effect at once, as on a real server.
#pragma once

#include "platform/volume_backend.h"

namespace tindra {

class FakeVolumeBackend final : public VolumeBackend {
 public:
  using VolumeBackend::VolumeBackend;

  void start() override {
    publish(VolumeReading{"invented-output", 0.6, false, AudioTransport::builtIn, true, true});
  }
  std::optional<VolumeReading> reading() const override { return reading_; }
  void setLevel(double level) override {
    if (reading_)
      publish(
          VolumeReading{reading_->output, level, reading_->muted, reading_->transport, true, true});
  }
  void setMuted(bool muted) override {
    if (reading_)
      publish(
          VolumeReading{reading_->output, reading_->level, muted, reading_->transport, true, true});
  }
  void playFeedback() override { ++feedbackPlayed; }
  ServiceCheck check() const override {
    return {DiagnosticsLog::Outcome::degraded,
            QStringLiteral("invented readings (TINDRA_FAKE asks for them)")};
  }

  int feedbackPlayed = 0;

  void publish(std::optional<VolumeReading> reading) {
    if (reading == reading_) return;
    reading_ = std::move(reading);
    emit readingChanged();
  }

 private:
  std::optional<VolumeReading> reading_;
};

}  // namespace tindra
