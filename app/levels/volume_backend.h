// VolumeBackend: the default output's volume and mute, followed as they change (by Tindra, a
// mixer, a headset button or a new default output), and written back on request. The reading
// also says which Bluetooth device the output is, so accessories can be matched to it.
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "hud/audio_transport.h"

namespace tindra {

struct VolumeReading {
  QString output;    // the sound server's name for the output ("alsa_output.pci-0000_00_1f.3...")
  double level = 0;  // 0 ... 1 is the normal range; some servers allow more
  bool muted = false;
  AudioTransport transport = AudioTransport::other;
  bool volumeSettable = true;  // false for an output whose level cannot be set
  bool muteSettable = true;
  // The device's address in BluetoothAddress's canonical form, for an output that is a Bluetooth
  // device.
  std::optional<std::string> bluetoothAddress = std::nullopt;

  friend bool operator==(const VolumeReading&, const VolumeReading&) = default;
};

class VolumeBackend : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  class Null;

  // This platform's volume backend: the real one, or the do-nothing one where there can be no
  // sound server (made in the platform's folder).
  static std::unique_ptr<VolumeBackend> forPlatform(SharedBackends& shared);
  // The one output volume every provider follows: the invented one when TINDRA_FAKE names
  // "hud", else this platform's.
  static std::shared_ptr<VolumeBackend> shared(SharedBackends& shared);

  // None while there is no sound server or no output.
  const std::optional<VolumeReading>& reading() const { return reading_; }
  virtual void setLevel(double level) = 0;
  virtual void setMuted(bool muted) = 0;
  // The short volume-change sound, on the output the reading came from.
  virtual void playFeedback() = 0;

 signals:
  void readingChanged();

 protected:
  // Out of line: inlined, GCC 12's sanitizer build misreads the moved optional as uninitialized.
  void publish(std::optional<VolumeReading> reading);

 private:
  std::optional<VolumeReading> reading_;
};

// Where there is no sound server to ask: no level, and nothing to set.
class VolumeBackend::Null final : public NullBackend<VolumeBackend> {
 public:
  using NullBackend::NullBackend;
  void setLevel(double) override {}
  void setMuted(bool) override {}
  void playFeedback() override {}
};

}  // namespace tindra
