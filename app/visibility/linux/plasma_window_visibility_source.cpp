#include "visibility/linux/plasma_window_visibility_source.h"

#include <wayland-client.h>

#include "base/linux/wayland_connection.h"
#include "wayland/plasma-window-management-client.h"

namespace tindra {

namespace {

PlasmaWindowVisibilitySource& self(void* data) {
  return *static_cast<PlasmaWindowVisibilitySource*>(data);
}

// Version 6 brings window frames; later ones add nothing the notch needs.
constexpr std::uint32_t managementVersion = 6;

}  // namespace

const org_kde_plasma_window_management_listener PlasmaWindowVisibilitySource::managementListener = {
    .show_desktop_changed = [](void*, org_kde_plasma_window_management*, std::uint32_t) {},
    .window = [](void* data, org_kde_plasma_window_management*,
                 std::uint32_t id) { self(data).add(id); },
    // Newer than the version bound, but KWin 5.27 sends window events past it (below) and a null
    // listener aborts the program, so each has one that ignores it.
    .stacking_order_changed = [](void*, org_kde_plasma_window_management*, wl_array*) {},
    .stacking_order_uuid_changed = [](void*, org_kde_plasma_window_management*, const char*) {},
    .window_with_uuid = [](void*, org_kde_plasma_window_management*, std::uint32_t, const char*) {},
};

const org_kde_plasma_window_listener PlasmaWindowVisibilitySource::windowListener = {
    .title_changed = [](void*, org_kde_plasma_window*, const char*) {},
    .app_id_changed =
        [](void* data, org_kde_plasma_window* window, const char* appId) {
          if (ToplevelWindow* known = self(data).find(window)) known->appId = appId;
          self(data).publishWindows();
        },
    .state_changed =
        [](void* data, org_kde_plasma_window* window, std::uint32_t flags) {
          ToplevelWindow* known = self(data).find(window);
          if (known == nullptr) return;
          known->active = flags & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE;
          known->fullScreen = flags & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_FULLSCREEN;
          known->minimized = flags & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_MINIMIZED;
          self(data).publishWindows();
        },
    .virtual_desktop_changed = [](void*, org_kde_plasma_window*, std::int32_t) {},
    .themed_icon_name_changed = [](void*, org_kde_plasma_window*, const char*) {},
    .unmapped = [](void* data, org_kde_plasma_window* window) { self(data).remove(window); },
    .initial_state = [](void*, org_kde_plasma_window*) {},
    .parent_window = [](void*, org_kde_plasma_window*, org_kde_plasma_window*) {},
    .geometry =
        [](void* data, org_kde_plasma_window* window, std::int32_t x, std::int32_t y,
           std::uint32_t width, std::uint32_t height) {
          if (ToplevelWindow* known = self(data).find(window)) {
            known->frame = QRect(x, y, static_cast<int>(width), static_cast<int>(height));
          }
          self(data).publishWindows();
        },
    .icon_changed = [](void*, org_kde_plasma_window*) {},
    .pid_changed = [](void*, org_kde_plasma_window*, std::uint32_t) {},
    // KWin 5.27 sends virtual_desktop_entered to a window of version 6, which has no such
    // event yet; a null listener there aborted Tindra on its first window.
    .virtual_desktop_entered = [](void*, org_kde_plasma_window*, const char*) {},
    .virtual_desktop_left = [](void*, org_kde_plasma_window*, const char*) {},
    .application_menu = [](void*, org_kde_plasma_window*, const char*, const char*) {},
    .activity_entered = [](void*, org_kde_plasma_window*, const char*) {},
    .activity_left = [](void*, org_kde_plasma_window*, const char*) {},
    .resource_name_changed = [](void*, org_kde_plasma_window*, const char*) {},
};

std::unique_ptr<PlasmaWindowVisibilitySource> PlasmaWindowVisibilitySource::make(
    std::shared_ptr<WaylandConnection> connection, ToplevelGameTest isGame) {
  if (!connection->isOpen()) return nullptr;
  auto* management = static_cast<org_kde_plasma_window_management*>(
      connection->bind(org_kde_plasma_window_management_interface, managementVersion));
  if (management == nullptr) return nullptr;
  return std::unique_ptr<PlasmaWindowVisibilitySource>(
      new PlasmaWindowVisibilitySource(std::move(connection), management, std::move(isGame)));
}

PlasmaWindowVisibilitySource::PlasmaWindowVisibilitySource(
    std::shared_ptr<WaylandConnection> connection, org_kde_plasma_window_management* management,
    ToplevelGameTest isGame)
    : connection_(std::move(connection)), management_(management), isGame_(std::move(isGame)) {
  org_kde_plasma_window_management_add_listener(management_, &managementListener, this);
}

PlasmaWindowVisibilitySource::~PlasmaWindowVisibilitySource() {
  for (const auto& [window, known] : windows_) org_kde_plasma_window_destroy(window);
  wl_proxy_destroy(reinterpret_cast<wl_proxy*>(management_));
  connection_->flush();
}

void PlasmaWindowVisibilitySource::start() {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("following the active window and full-screen state from KWin's "
                               "window list (Plasma window management)"),
                    tr));
  publishWindows();
}

void PlasmaWindowVisibilitySource::add(std::uint32_t id) {
  org_kde_plasma_window* window = org_kde_plasma_window_management_get_window(management_, id);
  windows_.emplace(window, ToplevelWindow{});
  org_kde_plasma_window_add_listener(window, &windowListener, this);
}

void PlasmaWindowVisibilitySource::remove(org_kde_plasma_window* window) {
  if (windows_.erase(window) == 0) return;
  org_kde_plasma_window_destroy(window);
  publishWindows();
}

ToplevelWindow* PlasmaWindowVisibilitySource::find(org_kde_plasma_window* window) {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : &found->second;
}

void PlasmaWindowVisibilitySource::publishWindows() {
  std::vector<ToplevelWindow> windows;
  windows.reserve(windows_.size());
  for (const auto& [window, known] : windows_) windows.push_back(known);
  ToplevelReading reading = readToplevels(windows, isGame_);
  publish(std::move(reading.frontmost), std::move(reading.windows));
}

}  // namespace tindra
