#include "activity/visibility_policy.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/text_case.h"

namespace tindra {
namespace {

constexpr double tolerance = VisibilityPolicy::edgeTolerance;

bool isVisible(const WindowSnapshot& window) {
  return window.alpha > VisibilityPolicy::visibleAlphaThreshold;
}

bool covers(const Rect& rect, const Rect& screen) {
  return rect.minX() <= screen.minX() + tolerance && rect.minY() <= screen.minY() + tolerance &&
         rect.maxX() >= screen.maxX() - tolerance && rect.maxY() >= screen.maxY() - tolerance;
}

bool matches(const Rect& a, const Rect& b) {
  return std::abs(a.minX() - b.minX()) <= tolerance && std::abs(a.minY() - b.minY()) <= tolerance &&
         std::abs(a.maxX() - b.maxX()) <= tolerance && std::abs(a.maxY() - b.maxY()) <= tolerance;
}

bool isMissionControlActive(std::span<const WindowSnapshot> windows,
                            std::optional<std::int32_t> dockProcessIdentifier,
                            const Rect& screenFrame) {
  if (!dockProcessIdentifier) return false;
  return std::ranges::any_of(windows, [&](const WindowSnapshot& w) {
    return w.ownerProcessIdentifier == *dockProcessIdentifier && isVisible(w) && w.layer >= 1 &&
           covers(w.bounds, screenFrame);
  });
}

bool isFullScreen(const FrontmostApp& app, std::span<const WindowSnapshot> windows,
                  const Rect& screenFrame) {
  auto isAppWindow = [&](const WindowSnapshot& w) {
    return w.ownerProcessIdentifier == app.processIdentifier && w.layer == 0 && isVisible(w);
  };
  if (std::ranges::any_of(windows, [&](const WindowSnapshot& w) {
        return isAppWindow(w) && covers(w.bounds, screenFrame);
      })) {
    return true;
  }
  // A frame reported as full screen counts only where a visible window of the app actually sits
  // on it, on this display.
  return std::ranges::any_of(app.fullScreenWindowFrames, [&](const Rect& frame) {
    return screenFrame.contains({frame.midX(), frame.midY()}) &&
           std::ranges::any_of(windows, [&](const WindowSnapshot& w) {
             return isAppWindow(w) && matches(w.bounds, frame);
           });
  });
}

bool isGame(const FrontmostApp& app, const VisibilitySettings& settings) {
  if (app.bundleIdentifier) {
    const std::string identifier = lowercased(*app.bundleIdentifier);
    if (std::ranges::any_of(settings.gameBundleIdentifiers, [&](const std::string& entry) {
          return lowercased(entry) == identifier;
        })) {
      return true;
    }
  }
  return VisibilityPolicy::isGamesCategory(app.category);
}

}  // namespace

std::optional<NotchHideReason> VisibilityPolicy::hideReason(
    const VisibilitySettings& settings, const std::optional<FrontmostApp>& frontmost,
    std::span<const WindowSnapshot> windows, std::optional<std::int32_t> dockProcessIdentifier,
    const Rect& screenFrame) {
  if (settings.hideDuringMissionControl &&
      isMissionControlActive(windows, dockProcessIdentifier, screenFrame)) {
    return NotchHideReason::missionControl;
  }
  if (!frontmost) return std::nullopt;
  const bool fullScreen = isFullScreen(*frontmost, windows, screenFrame);
  if (!fullScreen) return std::nullopt;
  if (settings.hideForGames && isGame(*frontmost, settings)) return NotchHideReason::game;
  if (settings.hideInFullScreen) return NotchHideReason::fullScreen;
  return std::nullopt;
}

bool VisibilityPolicy::isGamesCategory(std::optional<std::string_view> category) {
  if (!category) return false;
  const std::string lower = lowercased(*category);
  return lower == "public.app-category.games" ||
         (lower.starts_with("public.app-category.") && lower.ends_with("-games"));
}

}  // namespace tindra
