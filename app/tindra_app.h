// TindraApp: the running program's parts wired together: the settings store and its file
// watch, the activity centre, the providers and their views, the displays and their notch
// windows, the tray item and the shell menu. Where no tray shows the item, the notch offers the
// shell menu on a right click.
#pragma once

#include <QMenu>
#include <QObject>
#include <memory>

#include "base/shared_backends.h"
#include "tindra_providers.h"
#include "views/view_registry.h"

namespace tindra {

class ActivityCenter;
class AdapterCheck;
class DiagnosticsLog;
class DisplayChangeLog;
class NotchContent;
class OnboardingWindow;
class NotchScreenManager;
class ScreenSource;
class SettingsFileWatcher;
class SettingsStore;
class ShellActions;
class TrayItem;
class VisibilityMonitor;

class TindraApp : public QObject {
  Q_OBJECT

 public:
  struct Options {
    bool animated = true;
    // The introduction on the first start (not for the demo or tests).
    bool welcome = false;
  };

  explicit TindraApp(Options options, QObject* parent = nullptr);
  ~TindraApp() override;

  SettingsStore& settings() { return *settings_; }
  ActivityCenter& activities() { return *activities_; }
  DiagnosticsLog& diagnostics() { return *diagnostics_; }
  const TindraProviders& providers() const { return *providers_; }
  // The shared backends, and the invented ones the demo plays.
  SharedBackends& backends() { return backends_; }
  NotchScreenManager& notches() { return *notches_; }
  ShellActions& shell() { return *shell_; }
  TrayItem& tray() { return *tray_; }
  // The first start's introduction while it shows, else null.
  OnboardingWindow* onboarding() const { return onboarding_.get(); }
  VisibilityMonitor& visibility() { return *visibility_; }

 private:
  QMenu* notchMenu() const;
  void offerMenuOnNotches();
  void startProviders();
  void offerProvidersToShell();
  void stepAside();

  Options options_;
  SharedBackends backends_;  // before the providers that share them
  std::unique_ptr<SettingsStore> settings_;
  std::unique_ptr<SettingsFileWatcher> watcher_;
  std::unique_ptr<ActivityCenter> activities_;
  std::unique_ptr<DiagnosticsLog> diagnostics_;
  ViewRegistry views_{TindraProviders::views()};
  // The providers outlive the shell's windows, which show their calendars and places.
  std::unique_ptr<TindraProviders> providers_;
  std::unique_ptr<AdapterCheck> adapterCheck_;
  std::unique_ptr<ShellActions> shell_;
  std::unique_ptr<TrayItem> tray_;
  std::unique_ptr<NotchContent> content_;
  std::unique_ptr<ScreenSource> screens_;
  std::unique_ptr<DisplayChangeLog> displayChanges_;
  std::unique_ptr<NotchScreenManager> notches_;
  std::unique_ptr<VisibilityMonitor> visibility_;
  std::unique_ptr<OnboardingWindow> onboarding_;
};

}  // namespace tindra
