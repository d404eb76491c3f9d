#include "providers/accessory_provider.h"

#include "activity_center.h"
#include "diagnostics/diagnostics_log.h"
#include "logging_categories.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {

AccessoryProvider::AccessoryProvider(ProviderContext context,
                                     std::unique_ptr<AccessoryBackend> backend,
                                     std::shared_ptr<SoundPlayer> sounds, QObject* parent)
    : Provider(context, parent), backend_(std::move(backend)), sounds_(std::move(sounds)) {
  connect(backend_.get(), &AccessoryBackend::changed, this, &AccessoryProvider::onChanged);
  connect(backend_.get(), &AccessoryBackend::checkChanged, this, &AccessoryProvider::recordCheck);
}

void AccessoryProvider::start() {
  recordCheck();
  backend_->start();
  onChanged();
}

void AccessoryProvider::recordCheck() {
  const ServiceCheck check = backend_->check();
  diagnostics().record(lcBluetooth(), name(), check.outcome, check.text);
}

AccessoryNoticeTracker::Settings AccessoryProvider::noticeSettings() const {
  return {settings().read(settings::accessoryConnectNotices),
          settings().read(settings::accessoryDisconnectNotice),
          settings().read(settings::accessoryLowAlert),
          static_cast<int>(settings().read(settings::accessoryLowThreshold))};
}

void AccessoryProvider::onChanged() {
  const std::vector<BluetoothAccessory> connected = backend_->connected();
  viewModel_.setAccessories(connected);
  for (const AccessoryNotice& notice : tracker_.observe(connected, noticeSettings())) {
    viewModel_.setNotice(notice);
    qCInfo(lcBluetooth).noquote() << "accessory notice:" << viewModel_.notice()
                                  << QString::fromStdString(notice.accessory.name);
    activities().offer(ActivityEvent::began(ActivityKind::accessory, notice.duration()));
    if (!sounds_ || !settings().read(settings::playSounds)) continue;
    if (notice.kind == AccessoryNotice::Kind::connected) {
      sounds_->play(QStringLiteral("tindra-charging"));
    } else if (notice.kind == AccessoryNotice::Kind::low) {
      sounds_->play(QStringLiteral("tindra-low-battery"));
    }
  }
}

}  // namespace tindra
