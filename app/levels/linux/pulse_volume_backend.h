// PulseVolumeBackend: the default sink's volume and mute through the sound server. Every sink or
// server event reads the default sink again (so a new default, such as headphones plugged in,
// is followed at once); nothing is polled. Writes, and the volume-change sound, go to the sink
// the reading came from.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/linux/pulse_connection.h"
#include "base/linux/pulse_sample.h"
#include "levels/volume_backend.h"

namespace tindra {

class PulseVolumeBackend final : public VolumeBackend {
  Q_OBJECT

 public:
  // Shares `connection` with the other users of the sound server.
  explicit PulseVolumeBackend(
      std::shared_ptr<PulseConnection> connection = std::make_shared<PulseConnection>(),
      QObject* parent = nullptr);

  void start() override;
  void setLevel(double level) override;
  void setMuted(bool muted) override;
  void playFeedback() override;

  // The transport from a sink's properties: its bus ("usb", "bluetooth") and its name or port.
  static AudioTransport transportOf(const QString& bus, const QString& nameAndPort);
  // The Bluetooth address of a sink on the Bluetooth bus: PipeWire's api.bluez5.address, else
  // PulseAudio's device.string, else the one its name carries ("bluez_output.AA_BB_CC_DD_EE_FF.1",
  // "bluez_sink.AA_BB_CC_DD_EE_FF.a2dp_sink"). None for any other sink.
  static std::optional<std::string> bluetoothAddressOf(const QString& bus, const QString& address,
                                                       const QString& deviceString,
                                                       const QString& name);

 private:
  void readDefaultSink();

  std::shared_ptr<PulseConnection> connection_;
  PulseSample tick_;
  int channels_ = 2;
  bool answered_ = false;  // a server has been reached since the start
};

}  // namespace tindra
