#include "notch/display_platform.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWindow>
#include <cstdlib>

#include "base/linux/xcb_connection.h"

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

namespace {

// Atoms are the server's, whichever connection asks: asked once, on the shared connection.
xcb_atom_t blurAtom() {
  static const xcb_atom_t atom = [] {
    const std::shared_ptr<XcbConnection> connection = XcbConnection::shared();
    if (!connection->isOpen()) return xcb_atom_t(XCB_ATOM_NONE);
    const auto [blur] =
        connection->internAtoms(std::array<std::string_view, 1>{"_KDE_NET_WM_BLUR_BEHIND_REGION"});
    return blur;
  }();
  return atom;
}

}  // namespace

void setBlurBehind(QWindow& window, bool on) {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr) return;
  const xcb_atom_t blur = blurAtom();
  if (blur == XCB_ATOM_NONE) return;
  // Qt's connection made the window, so the server has it before this change arrives.
  xcb_connection_t* connection = x11->connection();
  const auto id = static_cast<xcb_window_t>(window.winId());
  // An empty region means the whole window; its shape keeps the blur to the notch.
  if (on) {
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, blur, XCB_ATOM_CARDINAL, 32, 0,
                        nullptr);
  } else {
    xcb_delete_property(connection, id, blur);
  }
  xcb_flush(connection);
}

}  // namespace tindra
