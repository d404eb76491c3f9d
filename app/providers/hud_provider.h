// HudProvider ("hud"): the level indicator. For now it follows the output volume: a change of
// level or mute made by anything (a mixer, pactl, a headset button) shows the indicator for the
// user's indicator time; the first reading, and a move to another output, show nothing.
#pragma once

#include <memory>

#include "platform/volume_backend.h"
#include "providers/hud_view_model.h"
#include "providers/provider.h"

namespace tindra {

class HudProvider final : public Provider {
  Q_OBJECT

 public:
  HudProvider(ProviderContext context, std::unique_ptr<VolumeBackend> volume,
              QObject* parent = nullptr);

  QString name() const override { return QStringLiteral("hud"); }
  void start() override;
  HudViewModel* viewModel() override { return &viewModel_; }

 private:
  void onVolume();
  void recordCheck();

  std::unique_ptr<VolumeBackend> volume_;
  std::optional<VolumeReading> last_;
  HudViewModel viewModel_;
};

}  // namespace tindra
