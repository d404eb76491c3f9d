// VisibilityPolicy: whether the notch on one display steps aside now, and why, from the frontmost
// app and the window server's list of windows. Stateless. Mission Control comes first (even with
// no app in front); a game hides the notch only while it is full screen, even when full-screen
// hiding is off; a windowed game never hides it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "activity/frontmost_app.h"
#include "activity/notch_hide_reason.h"
#include "activity/rect.h"
#include "activity/visibility_settings.h"
#include "activity/window_snapshot.h"

namespace tindra {

struct VisibilityPolicy {
  // Edges within this many points of the screen's (or a frame's) still count as covering it
  // (or matching it).
  static constexpr double edgeTolerance = 1.5;
  // Windows at or below this opacity are invisible.
  static constexpr double visibleAlphaThreshold = 0.01;

  // The reason to hide the notch on the display with `screenFrame`, or none to show it.
  // `dockProcessIdentifier` is the Dock's ("com.apple.dock"), when known.
  static std::optional<NotchHideReason> hideReason(
      const VisibilitySettings& settings, const std::optional<FrontmostApp>& frontmost,
      std::span<const WindowSnapshot> windows, std::optional<std::int32_t> dockProcessIdentifier,
      const Rect& screenFrame);

  // "public.app-category.games" or any "public.app-category.…-games" sub-category, in any case.
  static bool isGamesCategory(std::optional<std::string_view> category);
};

}  // namespace tindra
