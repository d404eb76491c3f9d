// AccessoryProvider ("accessories"): the connected Bluetooth accessories and their notices, as
// AccessoryNoticeTracker decides them (its header has the rules), each behind its setting:
// - connected (accessoryConnectNotices): the device's picture and battery, with the connect sound;
// - disconnected (accessoryDisconnectNotice);
// - low battery (accessoryLowAlert, at accessoryLowThreshold and again at 10 %), with the
//   low-battery sound;
// - routed (accessoryRouteNotice): the default output moved to an accessory, matched by its
//   Bluetooth address, as AccessoryRouteTracker decides.
// Each notice is the `accessory` activity for the notice's time; sounds play only while the
// app-wide sounds setting is on. The views draw levels as accessoryBatteryStyle says.
#pragma once

#include <memory>

#include "base/provider.h"
#include "base/provider_views.h"
#include "base/sound_player.h"
#include "levels/volume_backend.h"
#include "power/accessory_backend.h"
#include "power/accessory_notice_tracker.h"
#include "power/accessory_route_tracker.h"
#include "power/accessory_view_model.h"
#include "settings/settings_store.h"

namespace tindra {

class AccessoryProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "accessories";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "accessories").
  static std::unique_ptr<AccessoryProvider> make(ProviderContext& context);
  static ProviderViews views();

  // `output` is the default audio output, shared with the level indicator; without one there are
  // no route notices. `sounds` may be null.
  AccessoryProvider(ProviderContext context, std::unique_ptr<AccessoryBackend> backend,
                    std::shared_ptr<VolumeBackend> output = nullptr,
                    std::shared_ptr<SoundPlayer> sounds = nullptr, QObject* parent = nullptr);

  void start() override;
  AccessoryViewModel* viewModel() override { return &viewModel_; }
  // What it follows; tests wait for its first full reading.
  const AccessoryBackend& backend() const { return *backend_; }

 private:
  void onChanged();
  void followOutput(const std::vector<BluetoothAccessory>& connected);
  void show(const AccessoryNotice& notice);
  void applyDrawingSettings();
  AccessoryNoticeTracker::Settings noticeSettings() const;

  std::unique_ptr<AccessoryBackend> backend_;
  std::shared_ptr<VolumeBackend> output_;
  std::shared_ptr<SoundPlayer> sounds_;
  AccessoryNoticeTracker tracker_;
  AccessoryRouteTracker routes_;
  AccessoryViewModel viewModel_;
  SettingsObservation drawingSettings_;
};

}  // namespace tindra
