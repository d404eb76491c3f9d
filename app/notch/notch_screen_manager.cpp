#include "notch/notch_screen_manager.h"

#include <QScreen>

#include <algorithm>

#include "activity/display_picker.h"
#include "activity/display_selection.h"
#include "activity/notch_geometry.h"
#include "notch/notch_window.h"
#include "settings/settings_keys.h"

namespace tindra {

NotchScreenManager::NotchScreenManager(ScreenSource& screens, SettingsStore& settings,
                                       ActivityCenter& activities, NotchContent& content,
                                       std::function<void(NotchWindow&)> prepare,
                                       NotchWindowMaker make, QObject* parent)
    : QObject(parent),
      screens_(screens),
      settings_(settings),
      activities_(activities),
      content_(content),
      prepare_(std::move(prepare)),
      make_(std::move(make)) {
  // Screens change in bursts (a new monitor resizes the others); one rebuild per burst.
  pending_.setSingleShot(true);
  pending_.setInterval(0);
  connect(&pending_, &QTimer::timeout, this, &NotchScreenManager::rebuild);
  connect(&screens_, &ScreenSource::screensChanged, &pending_, qOverload<>(&QTimer::start));
  std::vector<std::string> keys;
  for (std::string_view name :
       {settings::displaySelection.name, settings::showOnDisplaysWithoutNotch.name,
        settings::simulatedNotchWidth.name, settings::simulatedNotchMatchesMenuBar.name,
        settings::simulatedNotchHeight.name}) {
    keys.emplace_back(name);
  }
  observation_ = settings_.observe(std::move(keys), [this](std::string_view) { pending_.start(); });
  rebuild();
}

NotchScreenManager::~NotchScreenManager() = default;

std::vector<NotchWindow*> NotchScreenManager::windows() const {
  std::vector<NotchWindow*> result;
  for (const auto& [id, window] : windows_) result.push_back(window.get());
  return result;
}

std::optional<double> NotchScreenManager::simulatedHeight() const {
  if (settings_.read(settings::simulatedNotchMatchesMenuBar)) return std::nullopt;
  return settings_.read(settings::simulatedNotchHeight);
}

void NotchScreenManager::rebuild() {
  pending_.stop();
  const std::vector<PlatformScreen> screens = screens_.screens();
  const ScreenCoordinates coordinates = screens_.coordinates();
  std::vector<DisplayCandidate> candidates;
  for (const PlatformScreen& screen : screens) candidates.push_back(screen.candidate);
  // A choice made by connector, before displays went by their product names, still holds.
  const auto refersTo = [&screens](const DisplayCandidate& candidate, std::string_view stored) {
    return std::ranges::any_of(screens, [&](const PlatformScreen& screen) {
      return screen.candidate.id == candidate.id && ScreenSource::refersTo(screen, stored);
    });
  };
  const std::vector<DisplayCandidate> chosen = DisplayPicker::pick(
      candidates, DisplaySelection::fromText(settings_.read(settings::displaySelection)),
      settings_.read(settings::showOnDisplaysWithoutNotch), refersTo);

  const std::optional<double> height = simulatedHeight();
  const double width = settings_.read(settings::simulatedNotchWidth);
  std::map<std::uint32_t, std::unique_ptr<NotchWindow>> kept;
  bool added = false;
  for (const DisplayCandidate& display : chosen) {
    const auto screen = std::find_if(screens.begin(), screens.end(), [&](const PlatformScreen& s) {
      return s.candidate.id == display.id;
    });
    if (screen == screens.end() || kept.contains(display.id)) continue;
    auto existing = windows_.find(display.id);
    std::unique_ptr<NotchWindow> window;
    if (existing != windows_.end()) {
      window = std::move(existing->second);
      windows_.erase(existing);
    } else {
      window = make_ ? make_(activities_, settings_, content_)
                     : std::make_unique<NotchWindow>(activities_, settings_, content_);
      if (prepare_) prepare_(*window);
      added = true;
    }
    window->place(NotchGeometry::forScreen(screen->descriptor, height, width), coordinates,
                  screen->screen);
    window->present(shows(*window));
    kept.emplace(display.id, std::move(window));
  }
  const bool removed = !windows_.empty();
  windows_ = std::move(kept);
  if (added || removed) emit windowsChanged();
}

void NotchScreenManager::setSteppedAside(bool aside) {
  if (steppedAside_ == aside) return;
  steppedAside_ = aside;
  applyVisibility();
}

void NotchScreenManager::setAsideOn(std::function<bool(const QRect& screen)> aside) {
  asideOn_ = std::move(aside);
  applyVisibility();
}

void NotchScreenManager::applyVisibility() {
  for (const auto& [id, window] : windows_) window->present(shows(*window));
}

bool NotchScreenManager::shows(const NotchWindow& window) const {
  if (steppedAside_) return false;
  return !asideOn_ || window.screen() == nullptr || !asideOn_(window.screen()->geometry());
}

}  // namespace tindra
