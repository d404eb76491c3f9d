#include "tindra_app.h"

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "base/settings_file_watcher.h"
#include "base/wall_clock.h"
#include "media/adapter_check.h"
#include "notch/display_change_log.h"
#include "notch/display_platform.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "notch/screen_source_factory.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "shell/onboarding_window.h"
#include "shell/shell_actions.h"
#include "shell/tray_item.h"
#include "views/notch_content.h"
#include "visibility/visibility_monitor.h"

namespace tindra {

TindraApp::TindraApp(Options options, QObject* parent)
    : QObject(parent),
      options_(options),
      settings_(std::make_unique<SettingsStore>(SettingsStore::defaultFile(), secondsSince1970)),
      watcher_(std::make_unique<SettingsFileWatcher>(*settings_)),
      activities_(std::make_unique<ActivityCenter>(*settings_)),
      diagnostics_(std::make_unique<DiagnosticsLog>()),
      shell_(std::make_unique<ShellActions>(*settings_, *diagnostics_, views_)),
      tray_(std::make_unique<TrayItem>(*settings_, *shell_)),
      screens_(makePlatformScreenSource()),
      displayChanges_(std::make_unique<DisplayChangeLog>(*screens_, *diagnostics_)) {
  shell_->setDisplays(screens_.get());
  startProviders();
  offerProvidersToShell();
  content_ = std::make_unique<NotchContent>(*activities_, *settings_, views_);
  notches_ = std::make_unique<NotchScreenManager>(
      *screens_, *settings_, *activities_, *content_,
      [this](NotchWindow& window) {
        window.setAnimated(options_.animated);
        window.setContextMenu(notchMenu());
        auto& tray = providers_->get<FileTrayProvider>();
        window.setFileDrop([&tray](const QList<QUrl>& urls) { return tray.drop(urls); });
        connect(&window, &NotchWindow::swiped, &providers_->get<NowPlayingProvider>(),
                &NowPlayingProvider::swiped);
      },
      notchWindowMaker(backends_));
  const DisplayPlatform& platform = displayPlatform();
  diagnostics_->record(lcNotch(), QStringLiteral("notch"),
                       platform.layerShell || !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
                           ? DiagnosticsLog::Outcome::ok
                           : DiagnosticsLog::Outcome::degraded,
                       platform.reasonSentence());
  connect(tray_.get(), &TrayItem::shownChanged, this, &TindraApp::offerMenuOnNotches);
  stepAside();
  if (options_.welcome && !settings_->read(settings::onboardingCompleted)) {
    onboarding_ = std::make_unique<OnboardingWindow>(*settings_, *diagnostics_,
                                                     AutostartEntry::forThisProgram());
    onboarding_->show();
  }
}

TindraApp::~TindraApp() = default;

void TindraApp::startProviders() {
  ProviderContext context{*activities_, *settings_, *diagnostics_, &backends_};
  providers_ = std::make_unique<TindraProviders>(context);
  providers_->forEach([this](Provider& provider) {
    views_.setModel(provider.name(), provider.viewModel());
    provider.start();
  });
}

// What Settings and Diagnostics offer of the providers: the adapter's check, the calendars, the
// weather's place, what keeps the keyboard light from use, and no battery settings on a machine
// without a battery (a desktop), with a word that says so.
void TindraApp::offerProvidersToShell() {
  if (const AdapterLaunch* adapter = providers_->get<NowPlayingProvider>().adapter()) {
    adapterCheck_ = std::make_unique<AdapterCheck>(*adapter, *diagnostics_);
    shell_->addCheck(
        {tr("Check Now Playing adapter"), [check = adapterCheck_.get()] { check->run(); }});
  }
  CalendarProvider& calendar = providers_->get<CalendarProvider>();
  shell_->setCalendars(&calendar.backend(), calendar.travel().available()
                                                ? QString()
                                                : calendar.travel().unavailableReason());
  shell_->setWeather(&providers_->get<WeatherProvider>());
  shell_->setKeyboardLight(&providers_->get<HudProvider>());
  const BatteryViewModel* battery = providers_->get<BatteryProvider>().viewModel();
  shell_->setBattery(battery);
  shell_->setHiddenSettings([battery](std::string_view name) {
    return !battery->available() && name.starts_with("battery");
  });
}

// Every notch steps aside while the screen is locked, and each over a full-screen window or game.
void TindraApp::stepAside() {
  const LockScreenViewModel* lock = providers_->get<LockScreenProvider>().viewModel();
  notches_->setSteppedAside(lock->locked());
  connect(lock, &LockScreenViewModel::lockedChanged, notches_.get(),
          &NotchScreenManager::setSteppedAside);
  visibility_ = VisibilityMonitor::make(*settings_, *diagnostics_, backends_);
  notches_->setAsideOn(
      [this](const QRect& screen) { return visibility_->reasonFor(screen).has_value(); });
  connect(visibility_.get(), &VisibilityMonitor::changed, notches_.get(),
          &NotchScreenManager::applyVisibility);
  visibility_->start();
}

QMenu* TindraApp::notchMenu() const {
  // The shell menu belongs to the tray item; the notch offers it only where no tray shows it.
  return tray_->isShown() ? nullptr : shell_->menu();
}

void TindraApp::offerMenuOnNotches() {
  for (NotchWindow* window : notches_->windows()) {
    window->setContextMenu(notchMenu());
  }
}

}  // namespace tindra
