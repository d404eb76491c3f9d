#include "providers/battery_provider.h"

#include "logging_categories.h"

namespace tindra {

BatteryProvider::BatteryProvider(ProviderContext context, std::unique_ptr<BatteryBackend> backend,
                                 QObject* parent)
    : Provider(context, parent), backend_(std::move(backend)) {
  backend_->setParent(nullptr);  // owned here, not by the Qt tree
  connect(backend_.get(), &BatteryBackend::readingChanged, this,
          [this] { viewModel_.setReading(backend_->reading()); });
  connect(backend_.get(), &BatteryBackend::checkChanged, this, &BatteryProvider::recordCheck);
}

void BatteryProvider::start() {
  recordCheck();
  backend_->start();
  viewModel_.setReading(backend_->reading());
}

void BatteryProvider::recordCheck() {
  const ServiceCheck check = backend_->check();
  diagnostics().record(lcBattery(), name(), check.outcome, check.text);
}

}  // namespace tindra
