#include "levels/fake_volume_backend.h"

namespace tindra {

// Out of line and field by field: GCC 12 at -O1 with the sanitizers misreads the inlined move
// of a braced VolumeReading's empty optional as uninitialized.
void FakeVolumeBackend::start() {
  if (reading()) return;
  VolumeReading invented;
  invented.output = QStringLiteral("invented-output");
  invented.level = 0.6;
  invented.transport = AudioTransport::builtIn;
  publish(invented);
}

void FakeVolumeBackend::setLevel(double level) {
  change([level](VolumeReading& r) { r.level = level; });
}

void FakeVolumeBackend::setMuted(bool muted) {
  change([muted](VolumeReading& r) { r.muted = muted; });
}

void FakeVolumeBackend::routeTo(const QString& output,
                                std::optional<std::string> bluetoothAddress) {
  change([&](VolumeReading& r) {
    r.output = output;
    r.transport = bluetoothAddress ? AudioTransport::bluetooth : AudioTransport::builtIn;
    r.bluetoothAddress = std::move(bluetoothAddress);
  });
}

void FakeVolumeBackend::change(const std::function<void(VolumeReading&)>& edit) {
  if (!reading()) return;
  VolumeReading next = *reading();
  edit(next);
  publish(next);
}

}  // namespace tindra
