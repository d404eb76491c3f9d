#include "tindra_app.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QNetworkInformation>
#include <QSysInfo>

#include "backend_factory.h"
#include "banners/banner_provider.h"
#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/settings_file_watcher.h"
#include "calendar/calendar_provider.h"
#include "files/file_tray_provider.h"
#include "focus/focus_provider.h"
#include "levels/hud_provider.h"
#include "lockscreen/lock_screen_provider.h"
#include "media/adapter_check.h"
#include "media/now_playing_provider.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "notch/screen_source_factory.h"
#include "power/accessory_provider.h"
#include "power/battery_provider.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "shell/onboarding_window.h"
#include "shell/shell_actions.h"
#include "shell/tray_item.h"
#include "views/notch_content.h"
#include "visibility/visibility_monitor.h"
#include "weather/weather_provider.h"

namespace tindra {

namespace {

double secondsSince1970() {
  return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

}  // namespace

TindraApp::TindraApp(Options options, QObject* parent)
    : QObject(parent),
      options_(options),
      settings_(std::make_unique<SettingsStore>(SettingsStore::defaultFile(), secondsSince1970)),
      watcher_(std::make_unique<SettingsFileWatcher>(*settings_)),
      activities_(std::make_unique<ActivityCenter>(*settings_)),
      diagnostics_(std::make_unique<DiagnosticsLog>()),
      shell_(std::make_unique<ShellActions>(*settings_, *diagnostics_)),
      tray_(std::make_unique<TrayItem>(*settings_, *shell_)),
      screens_(makePlatformScreenSource()) {
  startProviders();
  content_ = std::make_unique<NotchContent>(*activities_, *settings_, views_);
  notches_ = std::make_unique<NotchScreenManager>(
      *screens_, *settings_, *activities_, *content_, [this](NotchWindow& window) {
        window.setAnimated(options_.animated);
        window.setContextMenu(notchMenu());
        window.setFileDrop([this](const QList<QUrl>& urls) { return fileTray().drop(urls); });
        connect(&window, &NotchWindow::swiped, nowPlaying(), &NowPlayingProvider::swiped);
      });
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
  const ProviderContext context{*activities_, *settings_, *diagnostics_};
  NowPlayingBackend nowPlaying = makeNowPlayingBackend();
  if (nowPlaying.adapter) {
    adapterCheck_ = std::make_unique<AdapterCheck>(*nowPlaying.adapter, *diagnostics_);
    shell_->addCheck(
        {tr("Check Now Playing adapter"), [check = adapterCheck_.get()] { check->run(); }});
  }
  providers_.push_back(std::make_unique<NowPlayingProvider>(
      context, std::move(nowPlaying.makeSource), std::move(nowPlaying.probe),
      std::move(nowPlaying.artwork), std::move(nowPlaying.spectrum)));
  const std::shared_ptr<SoundPlayer> sounds = makeSoundPlayer();
  providers_.push_back(std::make_unique<BatteryProvider>(context, makeBatteryBackend(), sounds));
  HudBackends hud = makeHudBackends();
  const std::shared_ptr<VolumeBackend> output = hud.volume;
  providers_.push_back(std::make_unique<HudProvider>(context, std::move(hud)));
  providers_.push_back(
      std::make_unique<AccessoryProvider>(context, makeAccessoryBackend(), output, sounds));
  auto calendar = std::make_unique<CalendarProvider>(
      context, makeCalendarBackend(secondsSince1970), makeTravelTimeEstimator(), sounds,
      secondsSince1970, [](const QUrl& link) { return QDesktopServices::openUrl(link); });
  shell_->setCalendars(&calendar->backend(), calendar->travel().available()
                                                 ? QString()
                                                 : calendar->travel().unavailableReason());
  providers_.push_back(std::move(calendar));
  WeatherBackend weather = makeWeatherBackend(network_, secondsSince1970);
  auto weatherProvider = std::make_unique<WeatherProvider>(
      context, std::move(weather.location), std::move(weather.transport),
      WeatherProvider::defaultPlaces(), secondsSince1970);
  followNetwork(*weatherProvider);
  shell_->setWeather(weatherProvider.get());
  providers_.push_back(std::move(weatherProvider));
  const std::shared_ptr<FocusStatusSource> focus = makeFocusStatusSource();
  providers_.push_back(std::make_unique<FocusProvider>(context, focus));
  const std::filesystem::path configFolder = settings_->file().parent_path();
  providers_.push_back(std::make_unique<BannerProvider>(
      context, makeNotificationSource(), focus, makeApplicationOpener(),
      BannerProvider::userApps(configFolder / "banner-apps.json")));
  providers_.push_back(std::make_unique<FileTrayProvider>(
      context, FileTrayProvider::defaultDataFolder(), secondsSince1970,
      [](const QUrl& file) { return QDesktopServices::openUrl(file); }));
  providers_.push_back(std::make_unique<LockScreenProvider>(
      context, makeLockStateSource(),
      LockSessionGuard(configFolder, LockSessionGuard::readBootID(),
                       QSysInfo::prettyProductName().toStdString()),
      secondsSince1970));
  for (const auto& provider : providers_) {
    views_.setModel(provider->name(), provider->viewModel());
    provider->start();
  }
  // A machine without a battery (a desktop) has no battery settings.
  auto* battery = static_cast<BatteryViewModel*>(provider(QStringLiteral("battery"))->viewModel());
  shell_->setHiddenSettings([battery](std::string_view name) {
    return !battery->available() && name.starts_with("battery");
  });
}

// Every notch steps aside while the screen is locked, and each over a full-screen window or game.
void TindraApp::stepAside() {
  auto* lock = static_cast<LockScreenProvider*>(provider(QStringLiteral("lockscreen")));
  notches_->setSteppedAside(lock->locked());
  connect(lock, &LockScreenProvider::lockedChanged, notches_.get(),
          &NotchScreenManager::setSteppedAside);
  visibility_ =
      std::make_unique<VisibilityMonitor>(makeVisibilitySource(), *settings_, *diagnostics_);
  notches_->setAsideOn(
      [this](const QRect& screen) { return visibility_->reasonFor(screen).has_value(); });
  connect(visibility_.get(), &VisibilityMonitor::changed, notches_.get(),
          &NotchScreenManager::applyVisibility);
  visibility_->start();
}

// No forecast request while the network is down, and one soon after it returns. Without a way
// to know, the network counts as up and a failed request waits its ten minutes.
void TindraApp::followNetwork(WeatherProvider& weather) {
  if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
    return;
  }
  QNetworkInformation* network = QNetworkInformation::instance();
  const auto follow = [&weather](QNetworkInformation::Reachability reachability) {
    weather.setOnline(reachability != QNetworkInformation::Reachability::Disconnected);
  };
  follow(network->reachability());
  connect(network, &QNetworkInformation::reachabilityChanged, &weather, follow);
}

NowPlayingProvider* TindraApp::nowPlaying() const {
  return static_cast<NowPlayingProvider*>(provider(QStringLiteral("media")));
}

FileTrayProvider& TindraApp::fileTray() const {
  return *static_cast<FileTrayProvider*>(provider(QStringLiteral("files")));
}

Provider* TindraApp::provider(const QString& name) const {
  for (const auto& provider : providers_) {
    if (provider->name() == name) return provider.get();
  }
  return nullptr;
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
