#include "visibility/linux/wlr_toplevel_visibility_source.h"

#include <wayland-client.h>

#include <algorithm>
#include <span>

#include "base/linux/wayland_connection.h"
#include "wayland/wlr-foreign-toplevel-management-unstable-v1-client.h"

namespace tindra {

namespace {

WlrToplevelVisibilitySource& self(void* data) {
  return *static_cast<WlrToplevelVisibilitySource*>(data);
}

}  // namespace

const zwlr_foreign_toplevel_manager_v1_listener WlrToplevelVisibilitySource::managerListener = {
    .toplevel = [](void* data, zwlr_foreign_toplevel_manager_v1*,
                   zwlr_foreign_toplevel_handle_v1* handle) { self(data).add(handle); },
    .finished = [](void*, zwlr_foreign_toplevel_manager_v1*) {},
};

const zwlr_foreign_toplevel_handle_v1_listener WlrToplevelVisibilitySource::handleListener = {
    .title = [](void*, zwlr_foreign_toplevel_handle_v1*, const char*) {},
    .app_id =
        [](void* data, zwlr_foreign_toplevel_handle_v1* handle, const char* appId) {
          if (Handle* known = self(data).find(handle)) known->pending.appId = appId;
        },
    .output_enter =
        [](void* data, zwlr_foreign_toplevel_handle_v1* handle, wl_output* output) {
          Handle* known = self(data).find(handle);
          if (known && std::ranges::find(known->outputs, output) == known->outputs.end()) {
            known->outputs.push_back(output);
          }
        },
    .output_leave =
        [](void* data, zwlr_foreign_toplevel_handle_v1* handle, wl_output* output) {
          if (Handle* known = self(data).find(handle)) std::erase(known->outputs, output);
        },
    .state =
        [](void* data, zwlr_foreign_toplevel_handle_v1* handle, wl_array* states) {
          Handle* known = self(data).find(handle);
          if (known == nullptr) return;
          const std::span<const std::uint32_t> flags(
              static_cast<const std::uint32_t*>(states->data),
              states->size / sizeof(std::uint32_t));
          const auto has = [&](std::uint32_t state) {
            return std::ranges::find(flags, state) != flags.end();
          };
          known->pending.active = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED);
          known->pending.fullScreen = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_FULLSCREEN);
          known->pending.minimized = has(ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_MINIMIZED);
        },
    .done = [](void* data, zwlr_foreign_toplevel_handle_v1* handle) { self(data).done(handle); },
    .closed = [](void* data,
                 zwlr_foreign_toplevel_handle_v1* handle) { self(data).remove(handle); },
    .parent = [](void*, zwlr_foreign_toplevel_handle_v1*, zwlr_foreign_toplevel_handle_v1*) {},
};

std::unique_ptr<WlrToplevelVisibilitySource> WlrToplevelVisibilitySource::make(
    std::shared_ptr<WaylandConnection> connection, ToplevelGameTest isGame) {
  if (!connection->isOpen()) return nullptr;
  // The list starts as soon as the manager is bound: it is bound here, listened to at once.
  auto* manager = static_cast<zwlr_foreign_toplevel_manager_v1*>(
      connection->bind(zwlr_foreign_toplevel_manager_v1_interface, 3));
  if (manager == nullptr) return nullptr;
  return std::unique_ptr<WlrToplevelVisibilitySource>(
      new WlrToplevelVisibilitySource(std::move(connection), manager, std::move(isGame)));
}

WlrToplevelVisibilitySource::WlrToplevelVisibilitySource(
    std::shared_ptr<WaylandConnection> connection, zwlr_foreign_toplevel_manager_v1* manager,
    ToplevelGameTest isGame)
    : connection_(std::move(connection)), manager_(manager), isGame_(std::move(isGame)) {
  zwlr_foreign_toplevel_manager_v1_add_listener(manager_, &managerListener, this);
  // An output's place can change under a full-screen window.
  connect(connection_.get(), &WaylandConnection::outputsChanged, this,
          &WlrToplevelVisibilitySource::publishWindows);
}

WlrToplevelVisibilitySource::~WlrToplevelVisibilitySource() {
  for (const auto& [handle, known] : handles_) zwlr_foreign_toplevel_handle_v1_destroy(handle);
  zwlr_foreign_toplevel_manager_v1_destroy(manager_);
  connection_->flush();
}

void WlrToplevelVisibilitySource::start() {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("following the active window and full-screen state from the "
                               "compositor's window list (wlr foreign toplevel)"),
                    tr));
  publishWindows();
}

void WlrToplevelVisibilitySource::add(zwlr_foreign_toplevel_handle_v1* handle) {
  handles_.emplace(handle, Handle{});
  zwlr_foreign_toplevel_handle_v1_add_listener(handle, &handleListener, this);
}

void WlrToplevelVisibilitySource::remove(zwlr_foreign_toplevel_handle_v1* handle) {
  handles_.erase(handle);
  zwlr_foreign_toplevel_handle_v1_destroy(handle);
  publishWindows();
}

WlrToplevelVisibilitySource::Handle* WlrToplevelVisibilitySource::find(
    zwlr_foreign_toplevel_handle_v1* handle) {
  const auto found = handles_.find(handle);
  return found == handles_.end() ? nullptr : &found->second;
}

void WlrToplevelVisibilitySource::done(zwlr_foreign_toplevel_handle_v1* handle) {
  Handle* known = find(handle);
  if (known == nullptr) return;
  known->shown = known->pending;
  publishWindows();
}

void WlrToplevelVisibilitySource::publishWindows() {
  std::vector<ToplevelWindow> windows;
  for (const auto& [handle, known] : handles_) {
    ToplevelWindow window = known.shown;
    for (const wl_output* output : known.outputs) {
      if (const auto* place = connection_->output(output)) {
        window.outputs.push_back(place->geometry);
      }
    }
    windows.push_back(std::move(window));
  }
  ToplevelReading reading = readToplevels(windows, isGame_);
  publish(std::move(reading.frontmost), std::move(reading.windows));
}

}  // namespace tindra
