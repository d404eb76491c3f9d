#include "file_drag.h"

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <utility>

#include "virtual_pointer.h"
#include "wayland/wlr-layer-shell-unstable-v1-client.h"
#include "wayland_client.h"

namespace tindra {

namespace {

using namespace std::chrono_literals;

constexpr const char* uriList = "text/uri-list";
// How long the compositor may take to map the surface or pass on the pointer's events.
constexpr auto patience = 2s;

FileDrag& self(void* data) {
  return *static_cast<FileDrag*>(data);
}

// One opaque colour, so that screenshots show where the drag began.
wl_buffer* solidBuffer(wl_shm* shm, int side) {
  const int stride = side * 4;
  const int bytes = stride * side;
  const int fd = memfd_create("tindra-test-pointer", MFD_CLOEXEC);
  if (fd < 0 || ftruncate(fd, bytes) != 0) {
    if (fd >= 0) close(fd);
    return nullptr;
  }
  void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
  if (memory != MAP_FAILED) {
    auto* pixels = static_cast<std::uint32_t*>(memory);
    std::fill(pixels, pixels + side * side, 0xff3465a4u);
    munmap(memory, bytes);
  }
  wl_shm_pool* pool = wl_shm_create_pool(shm, fd, bytes);
  wl_buffer* buffer =
      wl_shm_pool_create_buffer(pool, 0, side, side, stride, WL_SHM_FORMAT_ARGB8888);
  wl_shm_pool_destroy(pool);
  close(fd);
  return buffer;
}

const char* actionName(std::uint32_t action) {
  switch (action) {
    case WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY:
      return "copy";
    case WL_DATA_DEVICE_MANAGER_DND_ACTION_MOVE:
      return "move";
    case WL_DATA_DEVICE_MANAGER_DND_ACTION_ASK:
      return "ask";
    default:
      return "none";
  }
}

}  // namespace

// One data device for the program's life. The compositor hands it an offer whenever a drag
// passes over this program's surface and whenever the clipboard changes; each is let go at once,
// or they would pile up for as long as the program runs.
FileDrag::FileDrag(WaylandClient& wayland, Report report)
    : wayland_(wayland),
      report_(std::move(report)),
      device_(wl_data_device_manager_get_data_device(wayland.dataDeviceManager(),
                                                     wayland.seat().seat())) {
  static const wl_data_device_listener listener = {
      .data_offer = [](void*, wl_data_device*, wl_data_offer*) {},
      .enter = [](void* data, wl_data_device*, std::uint32_t, wl_surface*, wl_fixed_t, wl_fixed_t,
                  wl_data_offer* offer) { self(data).passing_ = offer; },
      .leave = [](void* data, wl_data_device*) { self(data).letPassingGo(); },
      .motion = [](void*, wl_data_device*, std::uint32_t, wl_fixed_t, wl_fixed_t) {},
      .drop = [](void* data, wl_data_device*) { self(data).letPassingGo(); },
      .selection =
          [](void*, wl_data_device*, wl_data_offer* offer) {
            if (offer) wl_data_offer_destroy(offer);
          },
  };
  wl_data_device_add_listener(device_, &listener, this);
}

FileDrag::~FileDrag() {
  if (source_) wl_data_source_destroy(source_);
  letPassingGo();
  // Release tells the compositor; destroy alone would leave it sending offers to a device gone.
  if (wl_proxy_get_version(reinterpret_cast<wl_proxy*>(device_)) >= 2) {
    wl_data_device_release(device_);
  } else {
    wl_data_device_destroy(device_);
  }
  hide();
}

std::string FileDrag::start(std::vector<std::string> uris, VirtualPointer& pointer) {
  uris_ = std::move(uris);
  std::string error = show();
  if (error.empty()) error = pressOnSurface(pointer);
  if (error.empty()) error = drag(*wayland_.seat().pressSerial());
  if (!error.empty()) abandon(pointer);
  return error;
}

// The compositor takes the pointer from the surface when it starts the drag, and cancels the
// source when it refuses.
std::string FileDrag::drag(std::uint32_t serial) {
  offer(serial);
  wayland_.roundtrip();
  if (!isActive()) return "the compositor refused the drag";
  if (!wayland_.dispatchUntil([this] { return wayland_.seat().focus() != surface_; }, patience)) {
    return "the compositor did not start the drag";
  }
  return {};
}

// A failed start leaves nothing behind: no source, no surface, no button held.
void FileDrag::abandon(VirtualPointer& pointer) {
  if (source_) wl_data_source_destroy(std::exchange(source_, nullptr));
  hide();
  pointer.button(BTN_LEFT, false);
  wayland_.roundtrip();
}

std::string FileDrag::show() {
  const OutputLayout::Output* output = wayland_.outputs().first();
  if (output == nullptr) return "no output to show the drag's surface on";
  static const zwlr_layer_surface_v1_listener listener = {
      .configure =
          [](void* data, zwlr_layer_surface_v1* layer, std::uint32_t serial, std::uint32_t,
             std::uint32_t) {
            zwlr_layer_surface_v1_ack_configure(layer, serial);
            self(data).configured_ = true;
          },
      .closed = [](void* data, zwlr_layer_surface_v1*) { self(data).hide(); },
  };
  surface_ = wl_compositor_create_surface(wayland_.compositor());
  layer_ = zwlr_layer_shell_v1_get_layer_surface(wayland_.layerShell(), surface_, output->output,
                                                 ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "test-pointer");
  zwlr_layer_surface_v1_add_listener(layer_, &listener, this);
  zwlr_layer_surface_v1_set_size(layer_, side, side);
  zwlr_layer_surface_v1_set_anchor(layer_, ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM);
  zwlr_layer_surface_v1_set_keyboard_interactivity(
      layer_, ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
  wl_surface_commit(surface_);
  if (!wayland_.dispatchUntil([this] { return configured_; }, patience)) {
    return "the compositor never configured the drag's surface";
  }
  buffer_ = solidBuffer(wayland_.shm(), side);
  if (buffer_ == nullptr) return "no shared memory for the drag's surface";
  wl_surface_attach(surface_, buffer_, 0, 0);
  wl_surface_damage_buffer(surface_, 0, 0, side, side);
  wl_surface_commit(surface_);
  wayland_.roundtrip();
  return {};
}

// The surface sits centred on the output's bottom edge; the press there gives the serial that
// start_drag must name.
std::string FileDrag::pressOnSurface(VirtualPointer& pointer) {
  const Box& box = wayland_.outputs().first()->box;
  pointer.moveTo(box.x + box.width / 2, box.y + box.height - side / 2, wayland_.outputs().bounds());
  if (!wayland_.dispatchUntil([this] { return wayland_.seat().focus() == surface_; }, patience)) {
    return "the pointer never entered the drag's surface";
  }
  pointer.button(BTN_LEFT, true);
  if (!wayland_.dispatchUntil([this] { return wayland_.seat().pressSerial().has_value(); },
                              patience)) {
    return "the press never reached the drag's surface";
  }
  return {};
}

void FileDrag::offer(std::uint32_t serial) {
  static const wl_data_source_listener listener = {
      .target =
          [](void* data, wl_data_source*, const char* type) {
            // Qt refuses with an empty type rather than none.
            self(data).report_(std::string("accepted ") + (type && *type ? type : "none"));
          },
      .send = [](void* data, wl_data_source*, const char*,
                 std::int32_t fd) { self(data).send(fd); },
      .cancelled = [](void* data, wl_data_source*) { self(data).end("cancelled"); },
      .dnd_drop_performed = [](void* data, wl_data_source*) { self(data).report_("dropped"); },
      .dnd_finished = [](void* data, wl_data_source*) { self(data).end("finished"); },
      .action =
          [](void* data, wl_data_source*, std::uint32_t action) {
            self(data).report_(std::string("action ") + actionName(action));
          },
  };
  source_ = wl_data_device_manager_create_data_source(wayland_.dataDeviceManager());
  wl_data_source_add_listener(source_, &listener, this);
  wl_data_source_offer(source_, uriList);
  if (wl_proxy_get_version(reinterpret_cast<wl_proxy*>(source_)) >= 3) {
    wl_data_source_set_actions(source_, WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY);
  }
  wl_data_device_start_drag(device_, source_, surface_, nullptr, serial);
}

// A text/uri-list: one address a line, each line ended by CR LF.
void FileDrag::send(int fd) {
  std::string list;
  for (const std::string& uri : uris_) list += uri + "\r\n";
  std::size_t written = 0;
  while (written < list.size()) {
    const ssize_t wrote = write(fd, list.data() + written, list.size() - written);
    if (wrote <= 0) break;
    written += static_cast<std::size_t>(wrote);
  }
  close(fd);
  report_(written == list.size() ? "sent" : "sent partly");
}

void FileDrag::end(const char* how) {
  report_(how);
  wl_data_source_destroy(source_);
  source_ = nullptr;
  hide();
}

void FileDrag::letPassingGo() {
  if (passing_) wl_data_offer_destroy(std::exchange(passing_, nullptr));
}

void FileDrag::hide() {
  if (layer_) zwlr_layer_surface_v1_destroy(layer_);
  if (surface_) wl_surface_destroy(surface_);
  if (buffer_) wl_buffer_destroy(buffer_);
  layer_ = nullptr;
  surface_ = nullptr;
  buffer_ = nullptr;
  configured_ = false;
}

}  // namespace tindra
