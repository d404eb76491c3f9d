// FakeVolumeBackend: an invented output at 60 % for the demo and tests, only when TINDRA_FAKE
// names "hud". Writes take effect at once, as on a real server; `routeTo` moves the sound to
// another output, such as the invented accessories' earbuds.
#pragma once

#include <functional>

#include "levels/volume_backend.h"

namespace tindra {

class FakeVolumeBackend final : public VolumeBackend {
  Q_OBJECT

 public:
  explicit FakeVolumeBackend(QObject* parent = nullptr) : VolumeBackend(parent) {
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("invented readings (TINDRA_FAKE asks for them)"), tr));
  }

  // Shared by the level indicator and the accessories: a second start keeps the level.
  void start() override;
  void setLevel(double level) override;
  void setMuted(bool muted) override;
  void playFeedback() override { ++feedbackPlayed; }

  int feedbackPlayed = 0;

  using VolumeBackend::publish;
  // The default output becomes `output`, a Bluetooth device when `bluetoothAddress` is given.
  void routeTo(const QString& output, std::optional<std::string> bluetoothAddress);

 private:
  void change(const std::function<void(VolumeReading&)>& edit);
};

}  // namespace tindra
