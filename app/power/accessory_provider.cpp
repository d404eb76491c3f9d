#include "power/accessory_provider.h"
#include "base/backend_selection.h"
#include "power/fake_accessory_backend.h"

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "power/battery_threshold.h"
#include "settings/settings_keys.h"

namespace tindra {

AccessoryProvider::AccessoryProvider(ProviderContext context,
                                     std::unique_ptr<AccessoryBackend> backend,
                                     std::shared_ptr<VolumeBackend> output,
                                     std::shared_ptr<SoundPlayer> sounds, QObject* parent)
    : Provider(context, id, parent),
      backend_(std::move(backend)),
      output_(std::move(output)),
      sounds_(std::move(sounds)) {
  connect(backend_.get(), &AccessoryBackend::changed, this, &AccessoryProvider::onChanged);
  if (output_) {
    connect(output_.get(), &VolumeBackend::readingChanged, this,
            [this] { followOutput(backend_->connected()); });
  }
  drawingSettings_ = settings().observe({std::string(settings::accessoryBatteryStyle.name),
                                         std::string(settings::accessoryLowThreshold.name)},
                                        [this](std::string_view) { applyDrawingSettings(); });
  applyDrawingSettings();
}

void AccessoryProvider::start() {
  followCheck(lcBluetooth(), *backend_);
  backend_->start();
  if (output_) output_->start();
  onChanged();
}

void AccessoryProvider::applyDrawingSettings() {
  viewModel_.setDrawing(
      settings().read(settings::accessoryBatteryStyle),
      BatteryThreshold::clamped(settings().read(settings::accessoryLowThreshold)));
}

AccessoryNoticeTracker::Settings AccessoryProvider::noticeSettings() const {
  return {settings().read(settings::accessoryConnectNotices),
          settings().read(settings::accessoryDisconnectNotice),
          settings().read(settings::accessoryLowAlert),
          static_cast<int>(settings().read(settings::accessoryLowThreshold))};
}

void AccessoryProvider::onChanged() {
  // Until the backend has read what is there, an empty list would make every device already
  // connected look as if it had just connected.
  if (!backend_->ready()) return;
  const std::vector<BluetoothAccessory> connected = backend_->connected();
  viewModel_.setAccessories(connected);
  for (const AccessoryNotice& notice : tracker_.observe(connected, noticeSettings())) {
    if (notice.kind == AccessoryNotice::Kind::connected && notice.accessory.address) {
      routes_.connectNoticeShown(*notice.accessory.address, activities().now());
    }
    show(notice);
  }
  // The sound server may have moved the sound to a device Bluetooth only now reports.
  followOutput(connected);
}

void AccessoryProvider::followOutput(const std::vector<BluetoothAccessory>& connected) {
  if (!output_) return;
  const std::optional<VolumeReading> reading = output_->reading();
  if (!reading) {
    routes_.outputLost();
    return;
  }
  const std::optional<BluetoothAccessory> moved =
      routes_.observe(reading->bluetoothAddress, connected, activities().now());
  if (!moved) return;
  qCInfo(lcBluetooth).noquote() << "sound moved to accessory:"
                                << QString::fromStdString(moved->name) << reading->output;
  if (settings().read(settings::accessoryRouteNotice)) {
    show({AccessoryNotice::Kind::routed, *moved, std::nullopt});
  }
}

void AccessoryProvider::show(const AccessoryNotice& notice) {
  viewModel_.setNotice(notice);
  qCInfo(lcBluetooth).noquote() << "accessory notice:" << viewModel_.notice()
                                << QString::fromStdString(notice.accessory.name);
  activities().offer(ActivityEvent::began(ActivityKind::accessory, notice.duration()));
  if (!sounds_ || !settings().read(settings::playSounds)) return;
  if (notice.kind == AccessoryNotice::Kind::connected) {
    sounds_->play(QStringLiteral("tindra-charging"));
  } else if (notice.kind == AccessoryNotice::Kind::low) {
    sounds_->play(QStringLiteral("tindra-low-battery"));
  }
}

std::unique_ptr<AccessoryProvider> AccessoryProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  return std::make_unique<AccessoryProvider>(
      context,
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeAccessoryBackend>(); },
          [&] { return AccessoryBackend::forPlatform(shared); }),
      VolumeBackend::shared(shared), SoundPlayer::shared(shared));
}

// The accessories stand beside the battery in the "batteries" section.
ProviderViews AccessoryProvider::views() {
  return {.compact = {{ActivityKind::accessory, QStringLiteral("power/AccessoryCompact.qml")}},
          .sections = {{.name = QStringLiteral("batteries"),
                        .title = QT_TRANSLATE_NOOP("PinnedSectionsEditor", "Batteries"),
                        .rank = 60,
                        .file = QStringLiteral("power/AccessoriesPanel.qml")}}};
}

}  // namespace tindra
