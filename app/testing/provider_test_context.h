// ProviderTestContext: what a provider is built on, for a test: settings in a fresh folder (which
// also takes the test's own files), the activity center and the diagnostics log. It passes as
// the ProviderContext a provider's constructor takes.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/provider.h"
#include "settings/settings_store.h"

namespace tindra {

class ProviderTestContext {
 public:
  // The center tells time by `clock` and sleeps on `expiry` (a real timer without one).
  explicit ProviderTestContext(ActivityCenter::Clock clock = ActivityCenter::monotonicNow,
                               std::unique_ptr<OneShotScheduler> expiry = nullptr);
  ProviderTestContext(const ProviderTestContext&) = delete;
  ProviderTestContext& operator=(const ProviderTestContext&) = delete;

  operator ProviderContext() { return {activities_, settings_, diagnostics_}; }

  SettingsStore& settings() { return settings_; }
  ActivityCenter& activities() { return activities_; }
  DiagnosticsLog& diagnostics() { return diagnostics_; }
  const DiagnosticsLog& diagnostics() const { return diagnostics_; }
  // The folder, and a file in it.
  QString path() const { return dir_.path(); }
  QString filePath(const QString& name) const { return dir_.filePath(name); }

 private:
  QTemporaryDir dir_;
  SettingsStore settings_;
  ActivityCenter activities_;
  DiagnosticsLog diagnostics_;
};

}  // namespace tindra
