#include "platform/display_platform.h"

#include <cstdlib>

namespace tindra {

void selectDisplayPlatform() {
  // Wayland clients cannot place their own windows or stay above others, so under a Wayland
  // session Tindra runs through XWayland unless the user asked for something else.
  const bool wayland = std::getenv("WAYLAND_DISPLAY") != nullptr;
  const bool chosen = std::getenv("QT_QPA_PLATFORM") != nullptr;
  if (wayland && !chosen) setenv("QT_QPA_PLATFORM", "xcb", 1);
}

bool hasGraphicalSession() {
  const char* display = std::getenv("DISPLAY");
  const char* wayland = std::getenv("WAYLAND_DISPLAY");
  return (display != nullptr && *display != '\0') || (wayland != nullptr && *wayland != '\0');
}

Qt::WindowFlags notchWindowFlags() {
  // Bypassing the window manager keeps it from pushing the window below a top panel's strut;
  // such a window is never focused and never listed in a task bar.
  return Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus |
         Qt::X11BypassWindowManagerHint | Qt::Tool;
}

}  // namespace tindra
