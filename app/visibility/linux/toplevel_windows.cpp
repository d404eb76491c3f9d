#include "visibility/linux/toplevel_windows.h"

#include <algorithm>
#include <map>

namespace tindra {

namespace {

constexpr const char* gamesCategory = "public.app-category.games";

Rect toRect(const QRect& area) {
  return {static_cast<double>(area.x()), static_cast<double>(area.y()),
          static_cast<double>(area.width()), static_cast<double>(area.height())};
}

// Where a window is known to be: its frame, or the outputs it fills.
std::vector<QRect> knownAreas(const ToplevelWindow& window) {
  if (window.frame) return {*window.frame};
  return window.fullScreen ? window.outputs : std::vector<QRect>{};
}

}  // namespace

ToplevelReading readToplevels(const std::vector<ToplevelWindow>& toplevels,
                              const ToplevelGameTest& isGame) {
  // Application ids stand in for processes, numbered from 1 in order of first appearance.
  std::map<std::string, std::int32_t> applications;
  const auto application = [&](const std::string& appId) {
    return applications.try_emplace(appId, static_cast<std::int32_t>(applications.size() + 1))
        .first->second;
  };
  ToplevelReading reading;
  for (const ToplevelWindow& window : toplevels) {
    if (window.minimized) continue;
    const std::int32_t owner = application(window.appId);
    for (const QRect& area : knownAreas(window)) {
      reading.windows.push_back({owner, 0, toRect(area), 1});
    }
  }
  const auto active = std::ranges::find_if(
      toplevels, [](const ToplevelWindow& window) { return window.active && !window.minimized; });
  if (active == toplevels.end()) return reading;
  FrontmostApp& frontmost = reading.frontmost.emplace();
  frontmost.processIdentifier = application(active->appId);
  if (!active->appId.empty()) frontmost.bundleIdentifier = active->appId;
  if (!active->appId.empty() && isGame(active->appId)) frontmost.category = gamesCategory;
  for (const ToplevelWindow& window : toplevels) {
    if (window.appId != active->appId || !window.fullScreen || window.minimized) continue;
    for (const QRect& area : knownAreas(window)) {
      frontmost.fullScreenWindowFrames.push_back(toRect(area));
    }
  }
  return reading;
}

}  // namespace tindra
