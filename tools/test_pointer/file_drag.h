// FileDrag: a drag of files out of this program, started the way a file manager starts one: a
// small surface of its own on the overlay layer at the bottom of the first output, the pointer
// pressed on it, and a data source offering text/uri-list that hands the addresses to whoever
// takes the drop. What becomes of the drag is reported as the compositor tells it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

struct wl_surface;
struct wl_buffer;
struct wl_data_device;
struct wl_data_offer;
struct wl_data_source;
struct zwlr_layer_surface_v1;

namespace tindra {

class WaylandClient;
class VirtualPointer;

class FileDrag {
 public:
  using Report = std::function<void(const std::string&)>;

  FileDrag(WaylandClient& wayland, Report report);
  FileDrag(const FileDrag&) = delete;
  FileDrag& operator=(const FileDrag&) = delete;
  ~FileDrag();

  // Shows the surface, presses the left button on it and starts dragging `uris`; what failed,
  // or empty once the compositor has started the drag. One drag at a time. The button stays
  // pressed: releasing it drops.
  std::string start(std::vector<std::string> uris, VirtualPointer& pointer);
  // From the start until the drag is finished or cancelled.
  bool isActive() const { return source_ != nullptr; }

 private:
  static constexpr int side = 64;

  std::string show();
  std::string pressOnSurface(VirtualPointer& pointer);
  std::string drag(std::uint32_t serial);
  void abandon(VirtualPointer& pointer);
  void offer(std::uint32_t serial);
  void send(int fd);
  void end(const char* how);
  void letPassingGo();
  void hide();

  WaylandClient& wayland_;
  Report report_;
  std::vector<std::string> uris_;
  wl_surface* surface_ = nullptr;
  zwlr_layer_surface_v1* layer_ = nullptr;
  wl_buffer* buffer_ = nullptr;
  bool configured_ = false;
  wl_data_device* device_;
  wl_data_offer* passing_ = nullptr;  // of a drag over this program's own surface
  wl_data_source* source_ = nullptr;
};

}  // namespace tindra
