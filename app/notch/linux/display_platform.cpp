#include "notch/display_platform.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWindow>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "base/linux/wayland_connection.h"
#include "base/linux/xcb_connection.h"
#include "notch/linux/layer_shell_notch_window.h"

namespace tindra {

namespace {

DisplayPlatform& chosenPlatform() {
  static DisplayPlatform platform{false,
                                  QT_TRANSLATE_NOOP("Backends", "the notch is an X11 window")};
  return platform;
}

// A Wayland client cannot place its own windows or stay above others; only the layer shell
// lets it. Where the compositor has none (GNOME's Mutter), the notch goes through XWayland.
DisplayPlatform chooseWayland(std::string_view asked) {
  if (WaylandConnection::compositorOffersLayerShell()) {
    return {true, QT_TRANSLATE_NOOP("Backends",
                                    "the notch is a layer surface on the Wayland compositor")};
  }
  if (asked == "wayland") {
    return {false, QT_TRANSLATE_NOOP(
                       "Backends",
                       "TINDRA_PLATFORM asks for Wayland, but the compositor offers no layer "
                       "shell: the notch is an X11 window through XWayland")};
  }
  return {false, QT_TRANSLATE_NOOP(
                     "Backends",
                     "the Wayland compositor offers no layer shell (GNOME's has none): the notch "
                     "is an X11 window through XWayland, above other X11 windows but not always "
                     "above Wayland ones")};
}

QtMessageHandler qtHandler = nullptr;

// Qt says twice that it loaded no GPU buffer integration; that is the point, not a fault.
void dropBufferIntegrationNotes(QtMsgType type, const QMessageLogContext& context,
                                const QString& message) {
  const bool expected = context.category != nullptr &&
                        std::string_view(context.category) == "qt.qpa.wayland" &&
                        message.contains(QLatin1String("client buffer integration"));
  if (!expected && qtHandler != nullptr) qtHandler(type, context, message);
}

// Everything Tindra draws is drawn by the CPU (the software scene graph, raster widgets), but
// Qt's Wayland platform sets up EGL for the first window it decorates, which brings Mesa's
// software rasteriser and LLVM in: some 50 MB resident for nothing. Shared memory is all it needs.
void keepQtOffTheGpu() {
  if (std::getenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION") != nullptr) return;
  setenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none", 1);
  qtHandler = qInstallMessageHandler(dropBufferIntegrationNotes);
}

}  // namespace

void selectDisplayPlatform() {
  const char* tindraPlatform = std::getenv("TINDRA_PLATFORM");
  const std::string_view asked = tindraPlatform ? tindraPlatform : "";
  const char* qtPlatform = std::getenv("QT_QPA_PLATFORM");
  const bool wayland = std::getenv("WAYLAND_DISPLAY") != nullptr;
  DisplayPlatform& platform = chosenPlatform();
  if (asked == "x11") {
    platform.reason =
        QT_TRANSLATE_NOOP("Backends", "TINDRA_PLATFORM asks for X11: the notch is an X11 window");
  } else if (wayland && (asked == "wayland" ||
                         (asked.empty() &&
                          (qtPlatform == nullptr || std::string_view(qtPlatform) == "wayland")))) {
    platform = chooseWayland(asked);
  } else if (!asked.empty()) {
    std::fprintf(stderr, "tindra: TINDRA_PLATFORM=%s is neither x11 nor wayland; ignored\n",
                 tindraPlatform);
  }
  // The rest of the app (Settings, Diagnostics, the tray item) uses Qt's own platform: Wayland
  // beside a layer-surface notch, X11 beside an X11 one.
  if (platform.layerShell) {
    setenv("QT_QPA_PLATFORM", "wayland", 1);
    keepQtOffTheGpu();
  } else if (wayland || asked == "x11") {
    if (asked == "x11" || qtPlatform == nullptr) setenv("QT_QPA_PLATFORM", "xcb", 1);
  }
}

const DisplayPlatform& displayPlatform() {
  return chosenPlatform();
}

NotchWindowMaker notchWindowMaker(SharedBackends& shared) {
  if (!displayPlatform().layerShell) {
    return [](ActivityCenter& activities, SettingsStore& settings, NotchContent& content) {
      return std::make_unique<NotchWindow>(activities, settings, content);
    };
  }
  return [connection = WaylandConnection::shared(shared)](
             ActivityCenter& activities, SettingsStore& settings, NotchContent& content) {
    return std::unique_ptr<NotchWindow>(
        std::make_unique<LayerShellNotchWindow>(*connection, activities, settings, content));
  };
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
