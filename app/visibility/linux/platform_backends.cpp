// Stepping aside on Linux: on a Wayland compositor, its list of windows (wlroots' foreign
// toplevels, or KWin's window management); on X11, the window manager's EWMH properties.
#include <QGuiApplication>

#include "base/linux/wayland_connection.h"
#include "visibility/linux/desktop_entry_categories.h"
#include "visibility/linux/plasma_window_visibility_source.h"
#include "visibility/linux/wlr_toplevel_visibility_source.h"
#include "visibility/linux/x11_visibility_source.h"

namespace tindra {

namespace {

bool isGameApp(const std::string& appId) {
  return isGameApplication(appId, appId);
}

std::unique_ptr<VisibilitySource> forWayland(SharedBackends& shared) {
  std::shared_ptr<WaylandConnection> connection = WaylandConnection::shared(shared);
  if (auto wlroots = WlrToplevelVisibilitySource::make(connection, isGameApp)) return wlroots;
  if (auto kwin = PlasmaWindowVisibilitySource::make(connection, isGameApp)) return kwin;
  return std::make_unique<VisibilitySource::Null>(Sentence::in(
      "Backends", QT_TRANSLATE_NOOP("Backends",
                                    "the Wayland compositor lists no windows to other programs "
                                    "(neither wlr foreign toplevel nor Plasma window "
                                    "management): the notch never steps aside for full-screen "
                                    "windows or games")));
}

}  // namespace

std::unique_ptr<VisibilitySource> VisibilitySource::forPlatform(SharedBackends& shared) {
  const QString platform = QGuiApplication::platformName();
  if (platform == QLatin1String("wayland")) return forWayland(shared);
  if (platform != QLatin1String("xcb")) {
    return std::make_unique<VisibilitySource::Null>(
        Sentence::in("Backends", QT_TRANSLATE_NOOP("Backends",
                                                   "no X11 window manager to ask (%1): the notch "
                                                   "never steps aside for full-screen windows or "
                                                   "games"))
            .arg(platform));
  }
  return std::make_unique<X11VisibilitySource>(isGameApplication);
}

}  // namespace tindra
