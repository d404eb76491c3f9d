#include "notch/linux/layer_shell_notch_window.h"

#include <wayland-client.h>

#include <QCoreApplication>
#include <QQuickRenderTarget>
#include <QResizeEvent>
#include <QScreen>
#include <cmath>
#include <cstring>

#include "base/linux/wayland_connection.h"
#include "base/linux/wayland_seat.h"
#include "base/linux/wayland_shm_buffer.h"
#include "wayland/wlr-layer-shell-unstable-v1-client.h"

namespace tindra {

namespace {

LayerShellNotchWindow& self(void* data) {
  return *static_cast<LayerShellNotchWindow*>(data);
}

}  // namespace

const zwlr_layer_surface_v1_listener LayerShellNotchWindow::layerListener = {
    .configure = [](void* data, zwlr_layer_surface_v1*, std::uint32_t serial, std::uint32_t,
                    std::uint32_t) { self(data).configured(serial); },
    // The compositor took the surface away (its output went); a new one comes with the next
    // placement or presentation.
    .closed = [](void* data, zwlr_layer_surface_v1*) { self(data).destroySurface(); },
};

const wl_callback_listener LayerShellNotchWindow::frameListener = {
    .done = [](void* data, wl_callback*, std::uint32_t) { self(data).frameDone(); },
};

LayerShellNotchWindow::LayerShellNotchWindow(WaylandConnection& connection,
                                             ActivityCenter& activities, SettingsStore& settings,
                                             NotchContent& content)
    : NotchWindow(activities, settings, content, Rendering::offscreen), connection_(connection) {
  frameSoon_.setSingleShot(true);
  frameSoon_.setInterval(0);
  connect(&frameSoon_, &QTimer::timeout, this, &LayerShellNotchWindow::renderFrame);
  connect(renderControl(), &QQuickRenderControl::renderRequested, this,
          &LayerShellNotchWindow::requestFrame);
  connect(renderControl(), &QQuickRenderControl::sceneChanged, this,
          &LayerShellNotchWindow::requestFrame);
  connect(this, &NotchWindow::shapeChanged, this, [this] {
    inputChanged_ = true;
    requestFrame();
  });
  // Without a window of the window system's, nobody else tells the scene its new size.
  const auto resized = [this] {
    QResizeEvent event(size(), size());
    QCoreApplication::sendEvent(this, &event);
  };
  connect(this, &QWindow::widthChanged, this, resized);
  connect(this, &QWindow::heightChanged, this, resized);
  connect(this, &NotchWindow::placementChanged, this, [this] {
    // A layer surface stays on the output it was made for; another display needs a new one.
    const WaylandConnection::Output* output =
        screen() ? connection_.output(screen()->name()) : nullptr;
    if (layer_ &&
        (output == nullptr || output->output != surfaceOutput_ || output->geometry.isEmpty())) {
      destroySurface();
    }
    if (layer_) configureSurface();
    if (shown_ && !layer_) createSurface();
  });
  connect(&connection_, &WaylandConnection::outputsChanged, this, [this] {
    if (shown_ && !layer_) createSurface();
  });
}

// The scene is taken down by the base class, after this part is gone; what it says meanwhile
// (scene changes, a smaller window) must not reach this part.
LayerShellNotchWindow::~LayerShellNotchWindow() {
  disconnect(renderControl(), nullptr, this, nullptr);
  disconnect(this, nullptr, this, nullptr);
  disconnect(&connection_, nullptr, this, nullptr);
  destroySurface();
}

void LayerShellNotchWindow::present(bool shown) {
  if (shown == shown_) return;
  shown_ = shown;
  if (shown) {
    createSurface();
  } else {
    destroySurface();
  }
}

void LayerShellNotchWindow::dragFilesOut(const QList<QUrl>& urls) {
  if (surface_ == nullptr) return;
  if (WaylandSeat* seat = connection_.seat()) seat->startFileDrag(surface_, urls);
}

QPoint LayerShellNotchWindow::pointerPosition() const {
  // No Wayland client learns where the pointer is outside its own surfaces; the level then
  // shows on every display.
  return screen() ? screen()->geometry().center() : QPoint();
}

void LayerShellNotchWindow::createSurface() {
  if (layer_ || screen() == nullptr || !connection_.isOpen() || !connection_.layerShell()) return;
  const WaylandConnection::Output* output = connection_.output(screen()->name());
  if (output == nullptr) return;  // not announced on this connection yet: outputsChanged brings it
  surfaceOutput_ = output->output;
  surface_ = wl_compositor_create_surface(connection_.compositor());
  layer_ = zwlr_layer_shell_v1_get_layer_surface(connection_.layerShell(), surface_, output->output,
                                                 ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "tindra-notch");
  zwlr_layer_surface_v1_add_listener(layer_, &layerListener, this);
  if (WaylandSeat* seat = connection_.seat()) seat->route(surface_, this);
  inputChanged_ = true;
  configureSurface();
  connection_.flush();
}

// The surface hangs from its display's top edge where the layout put the window: the top and
// left margins say where. An exclusive zone of -1 keeps it at the very top, over a panel's own
// zone, and never pushes windows down.
void LayerShellNotchWindow::configureSurface() {
  const WaylandConnection::Output* output = connection_.output(screen()->name());
  const QRect window = geometry();
  const QPoint offset = output ? window.topLeft() - output->geometry.topLeft() : QPoint();
  zwlr_layer_surface_v1_set_size(layer_, std::max(1, window.width()), std::max(1, window.height()));
  zwlr_layer_surface_v1_set_anchor(
      layer_, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
  zwlr_layer_surface_v1_set_margin(layer_, offset.y(), 0, 0, offset.x());
  zwlr_layer_surface_v1_set_exclusive_zone(layer_, -1);
  zwlr_layer_surface_v1_set_keyboard_interactivity(
      layer_, ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
  // The new state takes effect with a commit; the compositor answers with a configure, and the
  // next frame is drawn at the new size after it.
  configured_ = false;
  wl_surface_commit(surface_);
}

void LayerShellNotchWindow::configured(std::uint32_t serial) {
  zwlr_layer_surface_v1_ack_configure(layer_, serial);
  configured_ = true;
  renderFrame();
}

void LayerShellNotchWindow::destroySurface() {
  if (frameCallback_) wl_callback_destroy(std::exchange(frameCallback_, nullptr));
  if (layer_) zwlr_layer_surface_v1_destroy(std::exchange(layer_, nullptr));
  if (surface_) {
    if (WaylandSeat* seat = connection_.seat()) seat->unroute(surface_);
    wl_surface_destroy(std::exchange(surface_, nullptr));
  }
  configured_ = false;
  frameSoon_.stop();
  connection_.flush();
}

void LayerShellNotchWindow::requestFrame() {
  if (!surface_ || !configured_) return;
  // While the compositor has not shown the last frame, the next waits for its callback.
  if (frameCallback_) {
    changedSinceFrame_ = true;
  } else {
    frameSoon_.start();
  }
}

int LayerShellNotchWindow::bufferScale() const {
  return std::max(1, static_cast<int>(std::ceil(devicePixelRatio())));
}

void LayerShellNotchWindow::renderFrame() {
  if (!surface_ || !configured_ || frameCallback_) return;
  const int scale = bufferScale();
  const QSize pixels = size() * scale;
  if (pixels.isEmpty()) return;
  if (frame_.size() != pixels) {
    frame_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    frame_.setDevicePixelRatio(scale);
    frame_.fill(Qt::transparent);
    setRenderTarget(QQuickRenderTarget::fromPaintDevice(&frame_));
  }
  QQuickRenderControl& control = *renderControl();
  control.polishItems();
  control.beginFrame();
  control.sync();
  control.render();
  control.endFrame();

  WaylandShmBuffer* buffer = freeBuffer(pixels);
  if (buffer == nullptr) return;  // every one still with the compositor; cannot last a frame
  std::memcpy(buffer->pixels(), frame_.constBits(), frame_.sizeInBytes());
  buffer->lend();
  updateInputRegion();
  wl_surface_set_buffer_scale(surface_, scale);
  wl_surface_attach(surface_, buffer->get(), 0, 0);
  wl_surface_damage_buffer(surface_, 0, 0, pixels.width(), pixels.height());
  frameCallback_ = wl_surface_frame(surface_);
  wl_callback_add_listener(frameCallback_, &frameListener, this);
  wl_surface_commit(surface_);
  connection_.flush();
  // As Qt's own render loop says when it has handed a frame over (reports and tests follow it).
  emit frameSwapped();
}

void LayerShellNotchWindow::frameDone() {
  wl_callback_destroy(std::exchange(frameCallback_, nullptr));
  // Whatever changed since the last frame is drawn now; an idle scene asked for nothing.
  if (std::exchange(changedSinceFrame_, false)) renderFrame();
}

// Only the notch outline takes the pointer; beside it, clicks reach the windows below.
void LayerShellNotchWindow::updateInputRegion() {
  if (!inputChanged_) return;
  inputChanged_ = false;
  wl_region* region = wl_compositor_create_region(connection_.compositor());
  for (const QRect& rect : mask()) {
    wl_region_add(region, rect.x(), rect.y(), rect.width(), rect.height());
  }
  wl_surface_set_input_region(surface_, region);
  wl_region_destroy(region);
}

WaylandShmBuffer* LayerShellNotchWindow::freeBuffer(QSize pixels) {
  for (auto& buffer : buffers_) {
    if (buffer && buffer->busy()) continue;
    if (!buffer || buffer->size() != pixels)
      buffer = WaylandShmBuffer::make(connection_.shm(), pixels);
    return buffer.get();
  }
  return nullptr;
}

}  // namespace tindra
