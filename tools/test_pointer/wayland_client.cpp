#include "wayland_client.h"

#include <poll.h>
#include <wayland-client.h>

#include <algorithm>
#include <cstring>

#include "wayland/wlr-layer-shell-unstable-v1-client.h"
#include "wayland/wlr-virtual-pointer-unstable-v1-client.h"
#include "wayland/xdg-output-unstable-v1-client.h"

namespace tindra {

namespace {

bool named(const char* interface, const wl_interface& known) {
  return std::strcmp(interface, known.name) == 0;
}

}  // namespace

std::unique_ptr<WaylandClient> WaylandClient::connect(std::string& error) {
  std::unique_ptr<WaylandClient> client(new WaylandClient());
  client->display_ = wl_display_connect(nullptr);
  if (client->display_ == nullptr) {
    error = "cannot reach the compositor at $WAYLAND_DISPLAY";
    return nullptr;
  }
  static const wl_registry_listener listener = {
      .global =
          [](void* data, wl_registry* registry, std::uint32_t name, const char* interface,
             std::uint32_t version) {
            static_cast<WaylandClient*>(data)->announce(registry, name, interface, version);
          },
      .global_remove =
          [](void* data, wl_registry*, std::uint32_t name) {
            static_cast<WaylandClient*>(data)->outputs_->remove(name);
          },
  };
  client->registry_ = wl_display_get_registry(client->display_);
  wl_registry_add_listener(client->registry_, &listener, client.get());
  // The globals, then what the bound ones say of themselves (the outputs' places).
  client->roundtrip();
  client->roundtrip();
  error = client->missing();
  if (!error.empty()) return nullptr;
  return client;
}

WaylandClient::~WaylandClient() {
  if (display_ == nullptr) return;
  seat_.reset();
  outputs_.reset();
  if (virtualPointers_) zwlr_virtual_pointer_manager_v1_destroy(virtualPointers_);
  if (layerShell_) zwlr_layer_shell_v1_destroy(layerShell_);
  if (dataDeviceManager_) wl_data_device_manager_destroy(dataDeviceManager_);
  if (shm_) wl_shm_destroy(shm_);
  if (compositor_) wl_compositor_destroy(compositor_);
  if (registry_) wl_registry_destroy(registry_);
  wl_display_disconnect(display_);
}

void WaylandClient::announce(wl_registry* registry, std::uint32_t name, const char* interface,
                             std::uint32_t version) {
  const auto bind = [&](const wl_interface& known, std::uint32_t highest) {
    return wl_registry_bind(registry, name, &known, std::min(version, highest));
  };
  if (named(interface, wl_compositor_interface)) {
    compositor_ = static_cast<wl_compositor*>(bind(wl_compositor_interface, 4));
  } else if (named(interface, wl_shm_interface)) {
    shm_ = static_cast<wl_shm*>(bind(wl_shm_interface, 1));
  } else if (named(interface, wl_data_device_manager_interface)) {
    dataDeviceManager_ =
        static_cast<wl_data_device_manager*>(bind(wl_data_device_manager_interface, 3));
  } else if (named(interface, zwlr_layer_shell_v1_interface)) {
    layerShell_ = static_cast<zwlr_layer_shell_v1*>(bind(zwlr_layer_shell_v1_interface, 3));
  } else if (named(interface, zwlr_virtual_pointer_manager_v1_interface)) {
    virtualPointers_ = static_cast<zwlr_virtual_pointer_manager_v1*>(
        bind(zwlr_virtual_pointer_manager_v1_interface, 1));
  } else if (named(interface, zxdg_output_manager_v1_interface)) {
    xdgOutputs_ = true;
    outputs_->setManager(
        static_cast<zxdg_output_manager_v1*>(bind(zxdg_output_manager_v1_interface, 3)));
  } else if (named(interface, wl_output_interface)) {
    outputs_->add(registry, name, version);
  } else if (named(interface, wl_seat_interface) && !seat_) {
    // The first seat is the compositor's default one, where a virtual pointer lands.
    seat_ = std::make_unique<SeatPointer>(static_cast<wl_seat*>(bind(wl_seat_interface, 5)));
  }
}

std::string WaylandClient::missing() const {
  const std::pair<bool, const char*> needs[] = {
      {compositor_ != nullptr, wl_compositor_interface.name},
      {shm_ != nullptr, wl_shm_interface.name},
      {seat_ != nullptr, wl_seat_interface.name},
      {dataDeviceManager_ != nullptr, wl_data_device_manager_interface.name},
      {layerShell_ != nullptr, zwlr_layer_shell_v1_interface.name},
      {virtualPointers_ != nullptr, zwlr_virtual_pointer_manager_v1_interface.name},
      {xdgOutputs_, zxdg_output_manager_v1_interface.name},
  };
  for (const auto& [offered, name] : needs) {
    if (!offered) return std::string("the compositor offers no ") + name;
  }
  return {};
}

bool WaylandClient::isOpen() const {
  return wl_display_get_error(display_) == 0;
}

bool WaylandClient::roundtrip() {
  return wl_display_roundtrip(display_) >= 0;
}

bool WaylandClient::dispatchUntil(const std::function<bool()>& done,
                                  std::chrono::milliseconds timeout) {
  const auto deadline = std::chrono::steady_clock::now() + timeout;
  while (!done() && isOpen()) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return false;
    dispatchOnce(-1, static_cast<int>(left.count()));
  }
  return done();
}

bool WaylandClient::dispatchUntilReadable(int fd) {
  while (isOpen()) {
    if (dispatchOnce(fd, -1)) return true;
  }
  return false;
}

bool WaylandClient::dispatchOnce(int fd, int timeoutMilliseconds) {
  while (wl_display_prepare_read(display_) != 0) wl_display_dispatch_pending(display_);
  // A full socket takes the rest on the next turn; a broken one shows as an error below.
  wl_display_flush(display_);
  pollfd fds[2] = {{wl_display_get_fd(display_), POLLIN, 0}, {fd, POLLIN, 0}};
  const int ready = poll(fds, fd >= 0 ? 2 : 1, timeoutMilliseconds);
  if (ready > 0 && fds[0].revents != 0) {
    wl_display_read_events(display_);
  } else {
    wl_display_cancel_read(display_);
  }
  wl_display_dispatch_pending(display_);
  return fd >= 0 && ready > 0 && fds[1].revents != 0;
}

}  // namespace tindra
