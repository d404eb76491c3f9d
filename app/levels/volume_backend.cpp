#include "levels/volume_backend.h"

#include "base/backend_selection.h"
#include "levels/fake_volume_backend.h"
#include "levels/hud_provider.h"

namespace tindra {

std::shared_ptr<VolumeBackend> VolumeBackend::shared(SharedBackends& shared) {
  return shared.get<VolumeBackend>([&shared] {
    return chooseBackend(
        HudProvider::id, shared, [] { return std::make_unique<FakeVolumeBackend>(); },
        [&] { return forPlatform(shared); });
  });
}

}  // namespace tindra
