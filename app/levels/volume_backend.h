// VolumeBackend: the default output's volume and mute, followed as they change (by Tindra, a
// mixer, a headset button or a new default output), and written back on request. The reading
// also says which Bluetooth device the output is, so accessories can be matched to it.
#pragma once

#include <QObject>
#include <QString>
#include <optional>
#include <string>

#include "base/service_check.h"
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

class VolumeBackend : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  // Every user of a shared backend starts it; later calls change nothing.
  virtual void start() = 0;
  // None while there is no sound server or no output.
  virtual std::optional<VolumeReading> reading() const = 0;
  virtual void setLevel(double level) = 0;
  virtual void setMuted(bool muted) = 0;
  // The short volume-change sound, on the output the reading came from.
  virtual void playFeedback() = 0;
  virtual ServiceCheck check() const = 0;

 signals:
  void readingChanged();
  void checkChanged();
};

}  // namespace tindra
