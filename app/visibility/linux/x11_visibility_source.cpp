#include "visibility/linux/x11_visibility_source.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <array>
#include <bit>
#include <string_view>
#include <vector>

#include "base/assign_if_changed.h"
#include "base/linux/xcb_reply.h"

namespace tindra {

namespace {

constexpr const char* gamesCategory = "public.app-category.games";
// Enough for any stacking list and any property we read, in 32-bit units.
constexpr std::uint32_t longestProperty = 4096;
// In the order of the members of X11VisibilitySource::Atoms.
constexpr std::array<std::string_view, 11> atomNames{"_NET_ACTIVE_WINDOW",
                                                     "_NET_CLIENT_LIST_STACKING",
                                                     "_NET_WM_STATE",
                                                     "_NET_WM_STATE_FULLSCREEN",
                                                     "_NET_WM_STATE_HIDDEN",
                                                     "_NET_WM_PID",
                                                     "_NET_WM_WINDOW_OPACITY",
                                                     "_GTK_APPLICATION_ID",
                                                     "_NET_WM_WINDOW_TYPE",
                                                     "_NET_WM_WINDOW_TYPE_DOCK",
                                                     "UTF8_STRING"};

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

X11VisibilitySource::X11VisibilitySource(GameTest isGame, std::shared_ptr<XcbConnection> connection,
                                         QObject* parent)
    : VisibilitySource(parent), isGame_(std::move(isGame)), connection_(std::move(connection)) {
  if (!connection_->isOpen()) {
    setCheck(
        DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("no X display: the notch never steps aside for full-screen windows "
                            "or games"),
                 tr));
    return;
  }
  static_assert(sizeof(Atoms) == atomNames.size() * sizeof(xcb_atom_t));
  atoms_ = std::make_unique<Atoms>(std::bit_cast<Atoms>(connection_->internAtoms(atomNames)));
}

// The connection may stay open for others: nothing more is asked of the server for this source.
X11VisibilitySource::~X11VisibilitySource() {
  if (!started_ || !connection_->isOpen()) return;
  const std::uint32_t none = XCB_EVENT_MASK_NO_EVENT;
  xcb_change_window_attributes(connection_->get(), connection_->root(), XCB_CW_EVENT_MASK, &none);
  follow(0);
  xcb_flush(connection_->get());
}

void X11VisibilitySource::start() {
  if (!atoms_ || started_) return;
  started_ = true;
  const std::uint32_t rootEvents = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(connection_->get(), connection_->root(), XCB_CW_EVENT_MASK,
                               &rootEvents);
  connection_->subscribe(this, {XCB_PROPERTY_NOTIFY, XCB_CONFIGURE_NOTIFY, XCB_DESTROY_NOTIFY},
                         [this](const xcb_generic_event_t& event) { take(event); });
  connect(connection_.get(), &XcbConnection::closed, this, &X11VisibilitySource::closed);
  reread();
}

// A property's 32-bit items (windows, atoms, cardinals); empty when it is missing.
std::vector<std::uint32_t> X11VisibilitySource::items(xcb_window_t window, xcb_atom_t property,
                                                      xcb_atom_t type) {
  const XcbReply<xcb_get_property_reply_t> reply = connection_->reply(
      xcb_get_property_reply,
      xcb_get_property(connection_->get(), 0, window, property, type, 0, longestProperty));
  if (!reply || reply->format != 32) return {};
  const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {values, values + xcb_get_property_value_length(reply.get()) / 4};
}

std::string X11VisibilitySource::text(xcb_window_t window, xcb_atom_t property, xcb_atom_t type) {
  const XcbReply<xcb_get_property_reply_t> reply = connection_->reply(
      xcb_get_property_reply,
      xcb_get_property(connection_->get(), 0, window, property, type, 0, longestProperty));
  if (!reply || reply->format != 8) return {};
  const char* value = static_cast<const char*>(xcb_get_property_value(reply.get()));
  return {value, static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

namespace {

bool contains(const std::vector<std::uint32_t>& list, std::uint32_t value) {
  return std::find(list.begin(), list.end(), value) != list.end();
}

}  // namespace

X11VisibilitySource::Window X11VisibilitySource::read(xcb_window_t window,
                                                      std::span<const ScreenScale> screens) {
  Window read;
  const std::vector<std::uint32_t> pid = items(window, atoms_->wmPid, XCB_ATOM_CARDINAL);
  // Without _NET_WM_PID the window stands for itself, as a number no process has.
  read.owner = !pid.empty() && pid[0] > 0 && pid[0] <= 0x7fffffff
                   ? static_cast<std::int32_t>(pid[0])
                   : -static_cast<std::int32_t>(window & 0x7fffffff);
  const std::vector<std::uint32_t> state = items(window, atoms_->wmState, XCB_ATOM_ATOM);
  read.fullScreen = contains(state, atoms_->fullScreen);
  read.hidden = contains(state, atoms_->hidden);
  read.dock = contains(items(window, atoms_->windowType, XCB_ATOM_ATOM), atoms_->dock);
  if (const auto opacity = items(window, atoms_->opacity, XCB_ATOM_CARDINAL); !opacity.empty()) {
    read.alpha = static_cast<double>(opacity[0]) / 0xffffffffu;
  }
  xcb_connection_t* x = connection_->get();
  const XcbReply<xcb_get_geometry_reply_t> geometry =
      connection_->reply(xcb_get_geometry_reply, xcb_get_geometry(x, window));
  const XcbReply<xcb_translate_coordinates_reply_t> origin =
      connection_->reply(xcb_translate_coordinates_reply,
                         xcb_translate_coordinates(x, window, connection_->root(), 0, 0));
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
  identity.applicationId = text(window, atoms_->gtkApplicationId, atoms_->utf8String);
  // WM_CLASS is "instance\0class\0".
  const std::string classes = text(window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING);
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
  xcb_connection_t* x = connection_->get();
  if (followed_ != 0) xcb_change_window_attributes(x, followed_, XCB_CW_EVENT_MASK, &none);
  if (active != 0) xcb_change_window_attributes(x, active, XCB_CW_EVENT_MASK, &wanted);
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
      items(connection_->root(), atoms_->activeWindow, XCB_ATOM_WINDOW);
  const xcb_window_t activeWindow = active.empty() ? 0 : active[0];
  follow(activeWindow);

  std::vector<WindowSnapshot> windows;
  std::optional<FrontmostApp> frontmost;
  for (const std::uint32_t window :
       items(connection_->root(), atoms_->clientListStacking, XCB_ATOM_WINDOW)) {
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
  if (connection_->isOpen()) {
    setCheck(
        DiagnosticsLog::Outcome::ok,
        Sentence(QT_TR_NOOP("following the active window and full-screen state from the window "
                            "manager (EWMH)"),
                 tr));
  }
  publish(std::move(frontmost), std::move(windows));
}

// An event that may change what is on screen has it read again.
void X11VisibilitySource::take(const xcb_generic_event_t& event) {
  if ((event.response_type & 0x7f) == XCB_PROPERTY_NOTIFY) {
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.atom != atoms_->activeWindow && change.atom != atoms_->clientListStacking &&
        change.atom != atoms_->wmState) {
      return;
    }
  }
  rereadSoon();
}

// One read for a burst of events (a window going full screen sends several): the read waits
// until every event at hand is taken.
void X11VisibilitySource::rereadSoon() {
  if (rereadQueued_) return;
  rereadQueued_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        rereadQueued_ = false;
        if (connection_->isOpen()) reread();
      },
      Qt::QueuedConnection);
}

void X11VisibilitySource::closed() {
  setCheck(DiagnosticsLog::Outcome::failed,
           Sentence(QT_TR_NOOP("the X server closed the connection: the notch no longer steps "
                               "aside"),
                    tr));
}

}  // namespace tindra
