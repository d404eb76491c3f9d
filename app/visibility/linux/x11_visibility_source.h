// X11VisibilitySource: the application in front and the windows on screen, as an EWMH window
// manager publishes them on the root window: _NET_ACTIVE_WINDOW, the active window's
// _NET_WM_STATE (full screen, hidden) and geometry, and _NET_CLIENT_LIST_STACKING with each
// window's process (_NET_WM_PID) and opacity. Whether the application in front is a game comes
// from its desktop entry (Categories=Game). A connection of its own to the X server follows
// PropertyNotify on the root and on the active window and ConfigureNotify of the active window;
// nothing is polled.
#pragma once

#include <xcb/xcb.h>

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "visibility/visibility_source.h"

namespace tindra {

class X11VisibilitySource final : public VisibilitySource {
  Q_OBJECT

 public:
  // Whether the application with this id (a desktop entry name, or empty) and window class is a
  // game.
  using GameTest =
      std::function<bool(const std::string& applicationId, const std::string& windowClass)>;

  // Connects to $DISPLAY; check() says so when that fails.
  explicit X11VisibilitySource(GameTest isGame, QObject* parent = nullptr);
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

  void readEvents();
  bool takeEvents();
  void reread();
  // `screens` as they are now, to bring the frame to Qt's pixels.
  Window read(xcb_window_t window, std::span<const ScreenScale> screens);
  Identity identify(xcb_window_t window);
  void follow(xcb_window_t active);

  GameTest isGame_;
  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
  std::unique_ptr<Atoms> atoms_;
  std::unique_ptr<QSocketNotifier> notifier_;
  xcb_window_t followed_ = 0;
};

}  // namespace tindra
