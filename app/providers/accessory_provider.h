// AccessoryProvider ("accessories"): the connected Bluetooth accessories and their notices, as
// AccessoryNoticeTracker decides them (its header has the rules), each behind its setting:
// - connected (accessoryConnectNotices): the device's picture and battery, with the connect sound;
// - disconnected (accessoryDisconnectNotice);
// - low battery (accessoryLowAlert, at accessoryLowThreshold and again at 10 %), with the
//   low-battery sound.
// Each notice is the `accessory` activity for the notice's time; sounds play only while the
// app-wide sounds setting is on.
#pragma once

#include <memory>

#include "platform/accessory_backend.h"
#include "platform/sound_player.h"
#include "power/accessory_notice_tracker.h"
#include "providers/accessory_view_model.h"
#include "providers/provider.h"

namespace tindra {

class AccessoryProvider final : public Provider {
  Q_OBJECT

 public:
  // `sounds` may be null.
  AccessoryProvider(ProviderContext context, std::unique_ptr<AccessoryBackend> backend,
                    std::shared_ptr<SoundPlayer> sounds = nullptr, QObject* parent = nullptr);

  QString name() const override { return QStringLiteral("accessories"); }
  void start() override;
  AccessoryViewModel* viewModel() override { return &viewModel_; }

 private:
  void onChanged();
  void recordCheck();
  AccessoryNoticeTracker::Settings noticeSettings() const;

  std::unique_ptr<AccessoryBackend> backend_;
  std::shared_ptr<SoundPlayer> sounds_;
  AccessoryNoticeTracker tracker_;
  AccessoryViewModel viewModel_;
};

}  // namespace tindra
