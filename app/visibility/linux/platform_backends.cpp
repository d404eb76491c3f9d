// Stepping aside on Linux: the window manager's EWMH properties on X11. A Wayland session lets
// no program see the other windows.
#include <QGuiApplication>

#include "visibility/linux/desktop_entry_categories.h"
#include "visibility/linux/x11_visibility_source.h"

namespace tindra {

std::unique_ptr<VisibilitySource> VisibilitySource::forPlatform(SharedBackends&) {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) {
    return std::make_unique<VisibilitySource::Null>(
        Sentence::in("Backends", QT_TRANSLATE_NOOP("Backends",
                                                   "no X11 window manager to ask (%1): the notch "
                                                   "never steps aside for full-screen windows or "
                                                   "games"))
            .arg(QGuiApplication::platformName()));
  }
  return std::make_unique<X11VisibilitySource>(isGameApplication);
}

}  // namespace tindra
