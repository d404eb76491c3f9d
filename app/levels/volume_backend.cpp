#include "levels/volume_backend.h"

#include "base/backend_selection.h"
#include "levels/fake_volume_backend.h"
#include "levels/hud_provider.h"

namespace tindra {

void VolumeBackend::publish(std::optional<VolumeReading> reading) {
  if (assignIfChanged(reading_, std::move(reading))) emit readingChanged();
}

std::shared_ptr<VolumeBackend> VolumeBackend::shared(SharedBackends& shared) {
  return shared.get<VolumeBackend>([&shared] {
    return chooseBackend(
        HudProvider::id, shared, [] { return std::make_unique<FakeVolumeBackend>(); },
        [&] { return forPlatform(shared); });
  });
}

}  // namespace tindra
