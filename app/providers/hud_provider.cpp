#include "providers/hud_provider.h"

#include "activity_center.h"
#include "diagnostics/diagnostics_log.h"
#include "hud/hud_display_duration.h"
#include "logging_categories.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {

HudProvider::HudProvider(ProviderContext context, std::unique_ptr<VolumeBackend> volume,
                         QObject* parent)
    : Provider(context, parent), volume_(std::move(volume)) {
  connect(volume_.get(), &VolumeBackend::readingChanged, this, &HudProvider::onVolume);
  connect(volume_.get(), &VolumeBackend::checkChanged, this, &HudProvider::recordCheck);
}

void HudProvider::start() {
  recordCheck();
  volume_->start();
}

void HudProvider::recordCheck() {
  const ServiceCheck check = volume_->check();
  diagnostics().record(lcHud(), name(), check.outcome, check.text);
}

void HudProvider::onVolume() {
  const std::optional<VolumeReading> reading = volume_->reading();
  const bool sameOutput = last_ && reading && last_->output == reading->output;
  const bool levelMoved =
      sameOutput && (last_->level != reading->level || last_->muted != reading->muted);
  last_ = reading;
  if (!reading) return;
  viewModel_.setState(HUDState(HUDKind::volume, reading->level, reading->muted));
  if (!levelMoved || !settings().read(settings::volumeHUDEnabled)) return;
  activities().offer(ActivityEvent::began(
      ActivityKind::hud, HUDDisplayDuration::clamped(settings().read(settings::hudDuration))));
}

}  // namespace tindra
