// ToplevelWindows: what a Wayland compositor tells a privileged client of other programs' windows
// (wlroots' foreign-toplevel list, KWin's window management), turned into what the visibility
// policy reads. The window in front is the active one; windows of one application id count as one
// application, as X11's do by process. Where the compositor tells no frame, a full-screen window
// covers the outputs it is on and the others are left out (their place is not known).
#pragma once

#include <QRect>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "activity/frontmost_app.h"
#include "activity/window_snapshot.h"

namespace tindra {

struct ToplevelWindow {
  std::string appId{};
  bool active = false;
  bool fullScreen = false;
  bool minimized = false;
  // In Qt's global coordinates: the outputs it is on, and its frame where the compositor tells
  // it (KWin does, wlroots does not).
  std::vector<QRect> outputs{};
  std::optional<QRect> frame{};

  friend bool operator==(const ToplevelWindow&, const ToplevelWindow&) = default;
};

struct ToplevelReading {
  std::optional<FrontmostApp> frontmost;
  std::vector<WindowSnapshot> windows;
};

// Whether the application with this id is a game (by its desktop entry).
using ToplevelGameTest = std::function<bool(const std::string& appId)>;

ToplevelReading readToplevels(const std::vector<ToplevelWindow>& toplevels,
                              const ToplevelGameTest& isGame);

}  // namespace tindra
