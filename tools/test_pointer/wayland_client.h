// WaylandClient: this program's connection to the compositor, the globals it binds and the
// waiting on it: the event loop sleeps on the compositor's socket and one other descriptor
// (the commands' input) at once, so events keep being dispatched between commands.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "output_layout.h"
#include "seat_pointer.h"

struct wl_display;
struct wl_registry;
struct wl_compositor;
struct wl_shm;
struct wl_data_device_manager;
struct zwlr_layer_shell_v1;
struct zwlr_virtual_pointer_manager_v1;

namespace tindra {

class WaylandClient {
 public:
  // Connects to $WAYLAND_DISPLAY and binds what the program needs; null, with `error` saying
  // what is missing, when it cannot.
  static std::unique_ptr<WaylandClient> connect(std::string& error);
  WaylandClient(const WaylandClient&) = delete;
  WaylandClient& operator=(const WaylandClient&) = delete;
  ~WaylandClient();

  wl_display* display() const { return display_; }
  wl_compositor* compositor() const { return compositor_; }
  wl_shm* shm() const { return shm_; }
  wl_data_device_manager* dataDeviceManager() const { return dataDeviceManager_; }
  zwlr_layer_shell_v1* layerShell() const { return layerShell_; }
  zwlr_virtual_pointer_manager_v1* virtualPointers() const { return virtualPointers_; }
  SeatPointer& seat() const { return *seat_; }
  const OutputLayout& outputs() const { return *outputs_; }

  // False once the compositor closed the connection.
  bool isOpen() const;
  // Waits until the compositor has handled every request sent so far, dispatching its events.
  bool roundtrip();
  // Dispatches events until `done` holds or `timeout` passes; whether it holds.
  bool dispatchUntil(const std::function<bool()>& done, std::chrono::milliseconds timeout);
  // Dispatches events until `fd` can be read; false when the connection is gone first.
  bool dispatchUntilReadable(int fd);

 private:
  WaylandClient() = default;
  void announce(wl_registry* registry, std::uint32_t name, const char* interface,
                std::uint32_t version);
  std::string missing() const;
  // Sleeps until the compositor says something, `fd` (when not -1) can be read or `timeout`
  // passes, and dispatches what came; whether `fd` can be read.
  bool dispatchOnce(int fd, int timeoutMilliseconds);

  wl_display* display_ = nullptr;
  wl_registry* registry_ = nullptr;
  wl_compositor* compositor_ = nullptr;
  wl_shm* shm_ = nullptr;
  wl_data_device_manager* dataDeviceManager_ = nullptr;
  zwlr_layer_shell_v1* layerShell_ = nullptr;
  zwlr_virtual_pointer_manager_v1* virtualPointers_ = nullptr;
  bool xdgOutputs_ = false;
  std::unique_ptr<SeatPointer> seat_;
  std::unique_ptr<OutputLayout> outputs_ = std::make_unique<OutputLayout>();
};

}  // namespace tindra
