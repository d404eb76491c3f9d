#include "platform/backend_factory.h"

#include <QDBusConnection>
#include <QDBusError>

#include "platform/adapter_now_playing_source.h"
#include "platform/backend_selection.h"
#include "platform/fake/fake_battery_backend.h"
#include "platform/fake/fake_now_playing_source.h"
#include "platform/fake/fake_volume_backend.h"
#include "platform/fake/offline_artwork_fetcher.h"
#include "platform/linux/pulse_volume_backend.h"
#include "platform/linux/upower_battery_backend.h"
#include "platform/network_artwork_fetcher.h"
#include "platform/null_battery_backend.h"
#include "platform/platform_adapter_launch.h"

namespace tindra {

std::unique_ptr<BatteryBackend> makeBatteryBackend() {
  if (fakeBackendRequested(QStringLiteral("battery")))
    return std::make_unique<FakeBatteryBackend>();
  QDBusConnection bus = QDBusConnection::systemBus();
  if (!bus.isConnected()) {
    return std::make_unique<NullBatteryBackend>(
        QStringLiteral("no system bus (%1): no battery is shown").arg(bus.lastError().message()));
  }
  return std::make_unique<UPowerBatteryBackend>(bus);
}

std::unique_ptr<VolumeBackend> makeVolumeBackend() {
  if (fakeBackendRequested(QStringLiteral("hud"))) return std::make_unique<FakeVolumeBackend>();
  // It waits for a sound server that is not there yet and follows one that restarts.
  return std::make_unique<PulseVolumeBackend>();
}

NowPlayingBackend makeNowPlayingBackend() {
  if (fakeBackendRequested(QStringLiteral("media"))) {
    return {[] { return std::make_unique<FakeNowPlayingSource>(); }, nullptr,
            std::make_unique<OfflineArtworkFetcher>(), std::nullopt};
  }
  const AdapterLaunch launch = platformAdapterLaunch();
  return {[launch] { return std::make_unique<AdapterNowPlayingSource>(launch); },
          std::make_unique<AdapterProbe>(launch), std::make_unique<NetworkArtworkFetcher>(),
          launch};
}

}  // namespace tindra
