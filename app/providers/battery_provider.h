// BatteryProvider ("battery"): the internal battery's percentage and power state for the idle
// layout and the "batteries" section. It follows its backend's readings as they arrive and
// copies every change of the backend's service check into the diagnostics log.
#pragma once

#include <memory>

#include "platform/battery_backend.h"
#include "providers/battery_view_model.h"
#include "providers/provider.h"

namespace tindra {

class BatteryProvider final : public Provider {
  Q_OBJECT

 public:
  BatteryProvider(ProviderContext context, std::unique_ptr<BatteryBackend> backend,
                  QObject* parent = nullptr);

  QString name() const override { return QStringLiteral("battery"); }
  void start() override;
  BatteryViewModel* viewModel() override { return &viewModel_; }

 private:
  void recordCheck();

  std::unique_ptr<BatteryBackend> backend_;
  BatteryViewModel viewModel_;
};

}  // namespace tindra
