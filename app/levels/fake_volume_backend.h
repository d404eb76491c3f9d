// FakeVolumeBackend: an invented output at 60 % for the demo and tests, only when TINDRA_FAKE
// names "hud". Writes take effect at once, as on a real server; `routeTo` moves the sound to
// another output, such as the invented accessories' earbuds.
#pragma once

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
  void start() override {
    if (!reading()) {
      publish(VolumeReading{"invented-output", 0.6, false, AudioTransport::builtIn, true, true});
    }
  }
  void setLevel(double level) override {
    change([level](VolumeReading& r) { r.level = level; });
  }
  void setMuted(bool muted) override {
    change([muted](VolumeReading& r) { r.muted = muted; });
  }
  void playFeedback() override { ++feedbackPlayed; }

  int feedbackPlayed = 0;

  using VolumeBackend::publish;
  // The default output becomes `output`, a Bluetooth device when `bluetoothAddress` is given.
  void routeTo(const QString& output, std::optional<std::string> bluetoothAddress) {
    change([&](VolumeReading& r) {
      r.output = output;
      r.transport = bluetoothAddress ? AudioTransport::bluetooth : AudioTransport::builtIn;
      r.bluetoothAddress = std::move(bluetoothAddress);
    });
  }

 private:
  template <class Edit>
  void change(Edit edit) {
    if (!reading()) return;
    VolumeReading next = *reading();
    edit(next);
    publish(next);
  }
};

}  // namespace tindra
