#include "power/battery_provider.h"
#include "base/backend_selection.h"
#include "power/fake_battery_backend.h"

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "power/battery_power_notice_migration.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {

namespace {

std::optional<bool> storedBool(const SettingsStore& settings, std::string_view name) {
  const JSONValue* value = settings.stored(name);
  const bool* flag = value ? value->asBool() : nullptr;
  return flag ? std::optional(*flag) : std::nullopt;
}

}  // namespace

BatteryProvider::BatteryProvider(ProviderContext context, std::unique_ptr<BatteryBackend> backend,
                                 std::shared_ptr<SoundPlayer> sounds, QObject* parent)
    : Provider(context, id, parent), backend_(std::move(backend)), sounds_(std::move(sounds)) {
  connect(backend_.get(), &BatteryBackend::readingChanged, this, &BatteryProvider::onReading);
}

void BatteryProvider::start() {
  migrateOldSetting();
  followCheck(lcBattery(), *backend_);
  backend_->start();
  onReading();
}

// The single power-notice setting of earlier versions becomes the two it was split into.
void BatteryProvider::migrateOldSetting() {
  const std::optional<BatteryPowerNoticeMigration> migration = BatteryPowerNoticeMigration::migrate(
      storedBool(settings(), BatteryPowerNoticeMigration::oldKey),
      storedBool(settings(), settings::batteryPluggedInNotice.name),
      storedBool(settings(), settings::batteryUnpluggedNotice.name));
  if (!migration) return;
  if (migration->pluggedInNotice) {
    (void)settings().write(settings::batteryPluggedInNotice, *migration->pluggedInNotice);
  }
  if (migration->unpluggedNotice) {
    (void)settings().write(settings::batteryUnpluggedNotice, *migration->unpluggedNotice);
  }
  (void)settings().resetStored(BatteryPowerNoticeMigration::oldKey);
}

BatteryNoticeTracker::Settings BatteryProvider::noticeSettings() const {
  return BatteryNoticeTracker::Settings(settings().read(settings::batteryPluggedInNotice),
                                        settings().read(settings::batteryUnpluggedNotice),
                                        settings().read(settings::batteryLowAlert),
                                        settings().read(settings::batteryLowThreshold));
}

void BatteryProvider::onReading() {
  const std::optional<BatteryStatus> reading = backend_->reading();
  viewModel_.setReading(reading);
  if (!reading) return;
  const std::optional<BatteryNotice> notice = tracker_.observe(*reading, noticeSettings());
  if (!notice) return;
  viewModel_.setNotice(*notice);
  qCInfo(lcBattery).noquote() << "battery notice:" << viewModel_.notice() << reading->percent
                              << "%";
  activities().offer(ActivityEvent::began(ActivityKind::batteryAlert, notice->duration()));
  if (!sounds_ || !settings().read(settings::playSounds)) return;
  if (notice->kind == BatteryNotice::Kind::pluggedIn)
    sounds_->play(QStringLiteral("tindra-charging"));
  if (notice->kind == BatteryNotice::Kind::low) sounds_->play(QStringLiteral("tindra-low-battery"));
}

std::unique_ptr<BatteryProvider> BatteryProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  return std::make_unique<BatteryProvider>(
      context,
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeBatteryBackend>(); },
          [&] { return BatteryBackend::forPlatform(shared); }),
      SoundPlayer::shared(shared));
}

ProviderViews BatteryProvider::views() {
  return {.compact = {{ActivityKind::batteryAlert, QStringLiteral("power/BatteryCompact.qml")}},
          .sections = {{.name = QStringLiteral("batteries"),
                        .title = QT_TRANSLATE_NOOP("PinnedSectionsEditor", "Batteries"),
                        .rank = 60,
                        .file = QStringLiteral("power/BatteriesPanel.qml")}},
          .idle = {{.rank = 10, .file = QStringLiteral("power/BatteryIdleItem.qml")}}};
}

}  // namespace tindra
