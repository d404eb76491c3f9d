#include "base/linux/wayland_connection.h"

#include <wayland-client.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <algorithm>
#include <cstring>

#include "base/linux/wayland_seat.h"
#include "base/shared_backends.h"
#include "wayland/wlr-layer-shell-unstable-v1-client.h"
#include "wayland/xdg-output-unstable-v1-client.h"

namespace tindra {

namespace {

WaylandConnection& self(void* data) {
  return *static_cast<WaylandConnection*>(data);
}

// What a Wayland object is called in the protocol, for matching the registry's names.
bool named(const char* interface, const wl_interface& known) {
  return std::strcmp(interface, known.name) == 0;
}

}  // namespace

const wl_registry_listener WaylandConnection::registryListener = {
    .global = [](void* data, wl_registry*, std::uint32_t name, const char* interface,
                 std::uint32_t version) { self(data).announce(name, interface, version); },
    .global_remove = [](void* data, wl_registry*,
                        std::uint32_t name) { self(data).withdraw(name); },
};

// wl_output's own events say where and how large in device pixels; the logical geometry comes
// from xdg-output, or from the position and the scale where a compositor has no xdg-output.
const wl_output_listener WaylandConnection::outputListener = {
    .geometry =
        [](void* data, wl_output* output, std::int32_t x, std::int32_t y, std::int32_t,
           std::int32_t, std::int32_t, const char*, const char*, std::int32_t) {
          if (Output* known = self(data).find(output); known && !known->xdgOutput) {
            known->geometry.moveTo(x, y);
          }
        },
    .mode =
        [](void* data, wl_output* output, std::uint32_t flags, std::int32_t width,
           std::int32_t height, std::int32_t) {
          Output* known = self(data).find(output);
          if (known && !known->xdgOutput && (flags & WL_OUTPUT_MODE_CURRENT)) {
            known->geometry.setSize(QSize(width, height) / std::max(1, known->scale));
          }
        },
    .done = [](void* data, wl_output*) { emit self(data).outputsChanged(); },
    .scale =
        [](void* data, wl_output* output, std::int32_t factor) {
          if (Output* known = self(data).find(output)) known->scale = std::max(1, factor);
        },
    .name =
        [](void* data, wl_output* output, const char* name) {
          if (Output* known = self(data).find(output)) known->name = QString::fromUtf8(name);
        },
    .description = [](void*, wl_output*, const char*) {},
};

const zxdg_output_v1_listener WaylandConnection::xdgOutputListener = {
    .logical_position = [](void* data, zxdg_output_v1*, std::int32_t x,
                           std::int32_t y) { static_cast<Output*>(data)->geometry.moveTo(x, y); },
    .logical_size =
        [](void* data, zxdg_output_v1*, std::int32_t width, std::int32_t height) {
          static_cast<Output*>(data)->geometry.setSize({width, height});
        },
    .done = [](void*, zxdg_output_v1*) {},
    .name = [](void* data, zxdg_output_v1*,
               const char* name) { static_cast<Output*>(data)->name = QString::fromUtf8(name); },
    .description = [](void*, zxdg_output_v1*, const char*) {},
};

WaylandConnection::WaylandConnection() : display_(wl_display_connect(nullptr)) {
  if (display_ == nullptr) return;
  registry_ = wl_display_get_registry(display_);
  wl_registry_add_listener(registry_, &registryListener, this);
  // The first round trip brings the globals, the second what the bound ones say about
  // themselves (outputs' names and geometry, the seat's capabilities).
  wl_display_roundtrip(display_);
  wl_display_roundtrip(display_);
  notifier_ = std::make_unique<QSocketNotifier>(wl_display_get_fd(display_), QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &WaylandConnection::readEvents);
  if (auto* dispatcher = QAbstractEventDispatcher::instance()) {
    flushBeforeSleep_ =
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { flush(); });
  }
  checkError();
}

WaylandConnection::~WaylandConnection() {
  if (display_ == nullptr) return;
  disconnect(flushBeforeSleep_);
  seat_.reset();
  for (const auto& output : outputs_) {
    if (output->xdgOutput) zxdg_output_v1_destroy(output->xdgOutput);
    wl_output_destroy(output->output);
  }
  if (xdgOutputManager_) zxdg_output_manager_v1_destroy(xdgOutputManager_);
  if (layerShell_) zwlr_layer_shell_v1_destroy(layerShell_);
  if (dataDeviceManager_) wl_data_device_manager_destroy(dataDeviceManager_);
  if (shm_) wl_shm_destroy(shm_);
  if (compositor_) wl_compositor_destroy(compositor_);
  wl_registry_destroy(registry_);
  wl_display_disconnect(display_);
}

std::shared_ptr<WaylandConnection> WaylandConnection::shared(SharedBackends& shared) {
  return shared.get<WaylandConnection>([] { return std::make_shared<WaylandConnection>(); });
}

bool WaylandConnection::compositorOffersLayerShell() {
  wl_display* display = wl_display_connect(nullptr);
  if (display == nullptr) return false;
  bool offered = false;
  static const wl_registry_listener listener = {
      .global =
          [](void* data, wl_registry*, std::uint32_t, const char* interface, std::uint32_t) {
            if (named(interface, zwlr_layer_shell_v1_interface)) *static_cast<bool*>(data) = true;
          },
      .global_remove = [](void*, wl_registry*, std::uint32_t) {},
  };
  wl_registry* registry = wl_display_get_registry(display);
  wl_registry_add_listener(registry, &listener, &offered);
  wl_display_roundtrip(display);
  wl_registry_destroy(registry);
  wl_display_disconnect(display);
  return offered;
}

bool WaylandConnection::isOpen() const {
  return display_ != nullptr && !lost_ && wl_display_get_error(display_) == 0;
}

void WaylandConnection::announce(std::uint32_t name, const char* interface, std::uint32_t version) {
  globals_.push_back({name, QString::fromLatin1(interface), version});
  const auto bindAt = [&](const wl_interface& known, std::uint32_t highest) {
    return wl_registry_bind(registry_, name, &known, std::min(version, highest));
  };
  if (named(interface, wl_compositor_interface)) {
    compositor_ = static_cast<wl_compositor*>(bindAt(wl_compositor_interface, 4));
  } else if (named(interface, wl_shm_interface)) {
    shm_ = static_cast<wl_shm*>(bindAt(wl_shm_interface, 1));
  } else if (named(interface, zwlr_layer_shell_v1_interface)) {
    layerShell_ = static_cast<zwlr_layer_shell_v1*>(bindAt(zwlr_layer_shell_v1_interface, 3));
  } else if (named(interface, wl_data_device_manager_interface)) {
    dataDeviceManager_ =
        static_cast<wl_data_device_manager*>(bindAt(wl_data_device_manager_interface, 3));
  } else if (named(interface, zxdg_output_manager_v1_interface)) {
    xdgOutputManager_ =
        static_cast<zxdg_output_manager_v1*>(bindAt(zxdg_output_manager_v1_interface, 3));
    for (const auto& output : outputs_) followXdgOutput(*output);
  } else if (named(interface, wl_output_interface)) {
    addOutput(name, version);
  } else if (named(interface, wl_seat_interface) && !seat_) {
    // One seat is enough for a pointer over the notch; desktops with more are rare.
    seat_ =
        std::make_unique<WaylandSeat>(*this, static_cast<wl_seat*>(bindAt(wl_seat_interface, 5)));
  }
}

void WaylandConnection::withdraw(std::uint32_t name) {
  std::erase_if(globals_, [name](const Global& global) { return global.name == name; });
  const auto gone = std::find_if(outputs_.begin(), outputs_.end(),
                                 [name](const auto& output) { return output->global == name; });
  if (gone == outputs_.end()) return;
  if ((*gone)->xdgOutput) zxdg_output_v1_destroy((*gone)->xdgOutput);
  wl_output_destroy((*gone)->output);
  outputs_.erase(gone);
  emit outputsChanged();
}

void WaylandConnection::addOutput(std::uint32_t name, std::uint32_t version) {
  auto output = std::make_unique<Output>();
  output->connection = this;
  output->global = name;
  output->output = static_cast<wl_output*>(
      wl_registry_bind(registry_, name, &wl_output_interface, std::min(version, 4u)));
  wl_output_add_listener(output->output, &outputListener, this);
  followXdgOutput(*output);
  outputs_.push_back(std::move(output));
}

void WaylandConnection::followXdgOutput(Output& output) {
  if (xdgOutputManager_ == nullptr || output.xdgOutput != nullptr) return;
  output.xdgOutput = zxdg_output_manager_v1_get_xdg_output(xdgOutputManager_, output.output);
  zxdg_output_v1_add_listener(output.xdgOutput, &xdgOutputListener, &output);
}

void* WaylandConnection::bind(const wl_interface& interface, std::uint32_t maxVersion) {
  const auto global = std::find_if(globals_.begin(), globals_.end(), [&](const Global& g) {
    return g.interface == QLatin1String(interface.name);
  });
  if (global == globals_.end()) return nullptr;
  return wl_registry_bind(registry_, global->name, &interface,
                          std::min(global->version, maxVersion));
}

const WaylandConnection::Output* WaylandConnection::output(const QString& name) const {
  for (const auto& output : outputs_) {
    if (output->name == name) return output.get();
  }
  return nullptr;
}

const WaylandConnection::Output* WaylandConnection::output(const wl_output* output) const {
  return const_cast<WaylandConnection*>(this)->find(output);
}

WaylandConnection::Output* WaylandConnection::find(const wl_output* output) {
  for (const auto& known : outputs_) {
    if (known->output == output) return known.get();
  }
  return nullptr;
}

void WaylandConnection::flush() {
  if (isOpen()) wl_display_flush(display_);
}

void WaylandConnection::readEvents() {
  // Another reader (none in this program) would make prepare_read fail; what is queued is
  // dispatched first either way.
  while (wl_display_prepare_read(display_) != 0) wl_display_dispatch_pending(display_);
  if (wl_display_read_events(display_) == 0) wl_display_dispatch_pending(display_);
  checkError();
}

void WaylandConnection::checkError() {
  if (lost_ || wl_display_get_error(display_) == 0) return;
  lost_ = true;
  notifier_->setEnabled(false);
}

}  // namespace tindra
