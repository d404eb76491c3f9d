// X11VisibilitySource: the application in front and the windows on screen, as an EWMH window
// manager publishes them on the root window: _NET_ACTIVE_WINDOW, the active window's
// _NET_WM_STATE (full screen, hidden) and geometry, and _NET_CLIENT_LIST_STACKING with each
// window's process (_NET_WM_PID) and opacity. Whether the application in front is a game comes
// from its desktop entry (Categories=Game). The shared XcbConnection to the X server follows
// PropertyNotify on the root and on the active window and ConfigureNotify of the active window;
// nothing is polled.
#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <memory>
#include <span>
#include <string>

#include "base/linux/xcb_connection.h"
#include "visibility/visibility_source.h"

namespace tindra {

class X11VisibilitySource final : public VisibilitySource {
  Q_OBJECT

 public:
  // Whether the application with this id (a desktop entry name, or empty) and window class is a
  // game.
  using GameTest =
      std::function<bool(const std::string& applicationId, const std::string& windowClass)>;

  // On `connection`'s display; check() says so when there is none.
  explicit X11VisibilitySource(GameTest isGame,
                               std::shared_ptr<XcbConnection> connection = XcbConnection::shared(),
                               QObject* parent = nullptr);
  ~X11VisibilitySource() override;

  void start() override;

  // A display as Qt sees it: its origin (the same in X's pixels and in Qt's), its size in Qt's
  // device-independent pixels, and how many of X's pixels make one of those.
  struct ScreenScale {
    Point origin;
    Size size;
    double ratio = 1;
  };
  // A window's frame in X's pixels as Qt places it, by the display its centre is on, so that it
  // compares with QScreen's geometry when Qt scales (QT_SCALE_FACTOR, high-DPI displays).
  static Rect logicalFrame(const Rect& native, std::span<const ScreenScale> screens);

 private:
  struct Atoms;
  struct Window;
  struct Identity;

  void take(const xcb_generic_event_t& event);
  void rereadSoon();
  void reread();
  // `screens` as they are now, to bring the frame to Qt's pixels.
  Window read(xcb_window_t window, std::span<const ScreenScale> screens);
  Identity identify(xcb_window_t window);
  void follow(xcb_window_t active);
  void closed();
  std::vector<std::uint32_t> items(xcb_window_t window, xcb_atom_t property, xcb_atom_t type);
  std::string text(xcb_window_t window, xcb_atom_t property, xcb_atom_t type);

  GameTest isGame_;
  std::shared_ptr<XcbConnection> connection_;
  std::unique_ptr<Atoms> atoms_;
  bool started_ = false;
  bool rereadQueued_ = false;
  xcb_window_t followed_ = 0;
};

}  // namespace tindra
