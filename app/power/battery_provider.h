// BatteryProvider ("battery"): the internal battery for the idle layout and the "batteries"
// section, and its notices: power connected, power disconnected and the low-battery warning
// (BatteryNoticeTracker's rules, the user's notice settings), each as the batteryAlert activity
// with a sound where there is one and sounds are on. It follows its backend's readings as they
// arrive and copies every change of the backend's service check into the diagnostics log.
#pragma once

#include <memory>

#include "base/provider.h"
#include "base/provider_views.h"
#include "base/sound_player.h"
#include "power/battery_backend.h"
#include "power/battery_notice_tracker.h"
#include "power/battery_view_model.h"

namespace tindra {

class BatteryProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "battery";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "battery").
  static std::unique_ptr<BatteryProvider> make(ProviderContext& context);
  static ProviderViews views();

  // `sounds` may be null (no sound server on this platform).
  BatteryProvider(ProviderContext context, std::unique_ptr<BatteryBackend> backend,
                  std::shared_ptr<SoundPlayer> sounds = nullptr, QObject* parent = nullptr);

  void start() override;
  BatteryViewModel* viewModel() override { return &viewModel_; }

 private:
  void onReading();
  void migrateOldSetting();
  BatteryNoticeTracker::Settings noticeSettings() const;

  std::unique_ptr<BatteryBackend> backend_;
  std::shared_ptr<SoundPlayer> sounds_;
  BatteryNoticeTracker tracker_;
  BatteryViewModel viewModel_;
};

}  // namespace tindra
