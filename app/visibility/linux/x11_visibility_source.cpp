#include "visibility/linux/x11_visibility_source.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cstring>
#include <vector>

#include "base/assign_if_changed.h"
#include "base/linux/xcb_reply.h"

namespace tindra {

namespace {

constexpr const char* gamesCategory = "public.app-category.games";
// Enough for any stacking list and any property we read, in 32-bit units.
constexpr std::uint32_t longestProperty = 4096;

}  // namespace

struct X11VisibilitySource::Atoms {
  xcb_atom_t activeWindow, clientListStacking, wmState, fullScreen, hidden, wmPid, opacity,
      gtkApplicationId, windowType, dock, utf8String;
};

// One window as read: its process (or a stand-in made from the window id), frame and state.
struct X11VisibilitySource::Window {
  std::int32_t owner = 0;
  Rect frame;
  double alpha = 1;
  bool fullScreen = false;
  bool hidden = false;
  bool dock = false;
};

// Who a window belongs to, asked of the active window alone.
struct X11VisibilitySource::Identity {
  std::string applicationId;  // _GTK_APPLICATION_ID, where GLib sets it
  std::string windowClass;    // the class half of WM_CLASS
};

X11VisibilitySource::X11VisibilitySource(GameTest isGame, QObject* parent)
    : VisibilitySource(parent), isGame_(std::move(isGame)) {
  int screen = 0;
  connection_ = xcb_connect(nullptr, &screen);
  if (xcb_connection_has_error(connection_) != 0) {
    setCheck(
        DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("no X display: the notch never steps aside for full-screen windows "
                            "or games"),
                 tr));
    return;
  }
  xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection_));
  for (int i = 0; i < screen && screens.rem > 0; ++i) xcb_screen_next(&screens);
  root_ = screens.data->root;

  const auto atom = [this](const char* name) {
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection_,
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
  };
  atoms_ = std::make_unique<Atoms>(
      Atoms{atom("_NET_ACTIVE_WINDOW"), atom("_NET_CLIENT_LIST_STACKING"), atom("_NET_WM_STATE"),
            atom("_NET_WM_STATE_FULLSCREEN"), atom("_NET_WM_STATE_HIDDEN"), atom("_NET_WM_PID"),
            atom("_NET_WM_WINDOW_OPACITY"), atom("_GTK_APPLICATION_ID"),
            atom("_NET_WM_WINDOW_TYPE"), atom("_NET_WM_WINDOW_TYPE_DOCK"), atom("UTF8_STRING")});
}

X11VisibilitySource::~X11VisibilitySource() {
  notifier_.reset();
  if (connection_ != nullptr) xcb_disconnect(connection_);
}

void X11VisibilitySource::start() {
  if (!atoms_ || notifier_) return;
  const std::uint32_t rootEvents = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &rootEvents);
  notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_),
                                                QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &X11VisibilitySource::readEvents);
  reread();
  readEvents();
}

namespace {

// A property's 32-bit items (windows, atoms, cardinals); empty when it is missing.
std::vector<std::uint32_t> items(xcb_connection_t* connection, xcb_window_t window,
                                 xcb_atom_t property, xcb_atom_t type) {
  const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
      connection, xcb_get_property(connection, 0, window, property, type, 0, longestProperty),
      nullptr));
  if (!reply || reply->format != 32) return {};
  const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {values, values + xcb_get_property_value_length(reply.get()) / 4};
}

std::string text(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property,
                 xcb_atom_t type) {
  const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
      connection, xcb_get_property(connection, 0, window, property, type, 0, longestProperty),
      nullptr));
  if (!reply || reply->format != 8) return {};
  const char* value = static_cast<const char*>(xcb_get_property_value(reply.get()));
  return {value, static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

bool contains(const std::vector<std::uint32_t>& list, std::uint32_t value) {
  return std::find(list.begin(), list.end(), value) != list.end();
}

}  // namespace

X11VisibilitySource::Window X11VisibilitySource::read(xcb_window_t window,
                                                      std::span<const ScreenScale> screens) {
  Window read;
  const std::vector<std::uint32_t> pid =
      items(connection_, window, atoms_->wmPid, XCB_ATOM_CARDINAL);
  // Without _NET_WM_PID the window stands for itself, as a number no process has.
  read.owner = !pid.empty() && pid[0] > 0 && pid[0] <= 0x7fffffff
                   ? static_cast<std::int32_t>(pid[0])
                   : -static_cast<std::int32_t>(window & 0x7fffffff);
  const std::vector<std::uint32_t> state =
      items(connection_, window, atoms_->wmState, XCB_ATOM_ATOM);
  read.fullScreen = contains(state, atoms_->fullScreen);
  read.hidden = contains(state, atoms_->hidden);
  read.dock = contains(items(connection_, window, atoms_->windowType, XCB_ATOM_ATOM), atoms_->dock);
  if (const auto opacity = items(connection_, window, atoms_->opacity, XCB_ATOM_CARDINAL);
      !opacity.empty()) {
    read.alpha = static_cast<double>(opacity[0]) / 0xffffffffu;
  }
  const XcbReply<xcb_get_geometry_reply_t> geometry(
      xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
  const XcbReply<xcb_translate_coordinates_reply_t> origin(xcb_translate_coordinates_reply(
      connection_, xcb_translate_coordinates(connection_, window, root_, 0, 0), nullptr));
  if (geometry && origin) {
    read.frame = logicalFrame(
        Rect{static_cast<double>(origin->dst_x), static_cast<double>(origin->dst_y),
             static_cast<double>(geometry->width), static_cast<double>(geometry->height)},
        screens);
  }
  return read;
}

Rect X11VisibilitySource::logicalFrame(const Rect& native, std::span<const ScreenScale> screens) {
  const Point centre{native.midX(), native.midY()};
  for (const ScreenScale& screen : screens) {
    const Rect covered{screen.origin.x, screen.origin.y, screen.size.width * screen.ratio,
                       screen.size.height * screen.ratio};
    if (!covered.contains(centre) || screen.ratio <= 0) continue;
    return Rect{screen.origin.x + (native.x - screen.origin.x) / screen.ratio,
                screen.origin.y + (native.y - screen.origin.y) / screen.ratio,
                native.width / screen.ratio, native.height / screen.ratio};
  }
  return native;
}

X11VisibilitySource::Identity X11VisibilitySource::identify(xcb_window_t window) {
  Identity identity;
  identity.applicationId = text(connection_, window, atoms_->gtkApplicationId, atoms_->utf8String);
  // WM_CLASS is "instance\0class\0".
  const std::string classes = text(connection_, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING);
  const std::size_t split = classes.find('\0');
  if (split != std::string::npos) {
    identity.windowClass = classes.substr(split + 1);
    if (const std::size_t end = identity.windowClass.find('\0'); end != std::string::npos) {
      identity.windowClass.resize(end);
    }
  }
  return identity;
}

// Watches the active window's state and geometry; the one before is let go.
void X11VisibilitySource::follow(xcb_window_t active) {
  if (active == followed_) return;
  const std::uint32_t none = XCB_EVENT_MASK_NO_EVENT;
  const std::uint32_t wanted = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  if (followed_ != 0)
    xcb_change_window_attributes(connection_, followed_, XCB_CW_EVENT_MASK, &none);
  if (active != 0) xcb_change_window_attributes(connection_, active, XCB_CW_EVENT_MASK, &wanted);
  followed_ = active;
}

void X11VisibilitySource::reread() {
  std::vector<ScreenScale> screens;
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect frame = screen->geometry();
    screens.push_back({{static_cast<double>(frame.x()), static_cast<double>(frame.y())},
                       {static_cast<double>(frame.width()), static_cast<double>(frame.height())},
                       screen->devicePixelRatio()});
  }
  const std::vector<std::uint32_t> active =
      items(connection_, root_, atoms_->activeWindow, XCB_ATOM_WINDOW);
  const xcb_window_t activeWindow = active.empty() ? 0 : active[0];
  follow(activeWindow);

  std::vector<WindowSnapshot> windows;
  std::optional<FrontmostApp> frontmost;
  for (const std::uint32_t window :
       items(connection_, root_, atoms_->clientListStacking, XCB_ATOM_WINDOW)) {
    const Window seen = read(window, screens);
    if (seen.hidden) continue;
    windows.push_back({seen.owner, seen.dock ? 1 : 0, seen.frame, seen.alpha});
    if (window != activeWindow) continue;
    frontmost = FrontmostApp{};
    frontmost->processIdentifier = seen.owner;
    const Identity identity = identify(window);
    const std::string& id =
        identity.applicationId.empty() ? identity.windowClass : identity.applicationId;
    if (!id.empty()) frontmost->bundleIdentifier = id;
    if (isGame_(identity.applicationId, identity.windowClass)) {
      frontmost->category = gamesCategory;
    }
    if (seen.fullScreen) frontmost->fullScreenWindowFrames.push_back(seen.frame);
  }
  if (xcb_connection_has_error(connection_) == 0) {
    setCheck(
        DiagnosticsLog::Outcome::ok,
        Sentence(QT_TR_NOOP("following the active window and full-screen state from the window "
                            "manager (EWMH)"),
                 tr));
  }
  publish(std::move(frontmost), std::move(windows));
}

void X11VisibilitySource::readEvents() {
  // The replies a reread waits for can bring events along into xcb's own queue, where the socket
  // notifier never sees them; so the queue is emptied again after every reread.
  while (takeEvents()) {
    if (xcb_connection_has_error(connection_) != 0) break;
    reread();  // one read for a burst of events (a window going full screen sends several)
  }
  if (xcb_connection_has_error(connection_) != 0) {
    notifier_.reset();
    setCheck(DiagnosticsLog::Outcome::failed,
             Sentence(QT_TR_NOOP("the X server closed the connection: the notch no longer steps "
                                 "aside"),
                      tr));
  }
}

// Empties xcb's event queue; true when an event there may change what is on screen.
bool X11VisibilitySource::takeEvents() {
  bool stale = false;
  while (XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
    const std::uint8_t type = event->response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
      const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
      stale |= change->atom == atoms_->activeWindow || change->atom == atoms_->clientListStacking ||
               change->atom == atoms_->wmState;
    }
    stale |= type == XCB_CONFIGURE_NOTIFY || type == XCB_DESTROY_NOTIFY;
  }
  return stale;
}

}  // namespace tindra
