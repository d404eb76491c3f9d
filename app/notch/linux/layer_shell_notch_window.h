// LayerShellNotchWindow: the notch on a Wayland compositor that offers the layer shell (KWin,
// wlroots compositors, Hyprland, niri, COSMIC). Qt 6.4 can make no layer surface, so the notch's
// scene renders offscreen (the software renderer, into memory shared with the compositor) and
// this window drives a layer surface of its own on Tindra's own connection: on the overlay layer
// of its display, hanging from the top edge, over the panel without pushing windows down, never
// taking the keyboard, hit only inside the notch outline. Frames follow the compositor's frame
// callbacks, so a hidden or idle notch draws nothing. The pointer and file drops come in through
// WaylandSeat as the events Qt would send.
#pragma once

#include <QImage>
#include <QTimer>
#include <array>
#include <memory>

#include "notch/notch_window.h"

struct wl_output;
struct wl_surface;
struct wl_callback;
struct zwlr_layer_surface_v1;
struct zwlr_layer_surface_v1_listener;
struct wl_callback_listener;

namespace tindra {

class WaylandConnection;
class WaylandShmBuffer;

class LayerShellNotchWindow final : public NotchWindow {
  Q_OBJECT

 public:
  LayerShellNotchWindow(WaylandConnection& connection, ActivityCenter& activities,
                        SettingsStore& settings, NotchContent& content);
  ~LayerShellNotchWindow() override;

  void present(bool shown) override;
  bool isPresented() const override { return shown_; }
  // Qt's drag needs a window of Qt's own to start from.
  bool dragsFilesItself() const override { return true; }
  void dragFilesOut(const QList<QUrl>& urls) override;

 protected:
  QPoint pointerPosition() const override;
  // A menu window would be a window of Qt's, which the compositor places as it likes (tiled,
  // full screen); inside the layer surface it stays by the notch.
  bool drawsMenuInside() const override { return true; }

 private:
  void createSurface();
  void destroySurface();
  void configureSurface();
  void configured(std::uint32_t serial);
  void requestFrame();
  void renderFrame();
  void frameDone();
  void updateInputRegion();
  int bufferScale() const;
  WaylandShmBuffer* freeBuffer(QSize pixels);

  static const zwlr_layer_surface_v1_listener layerListener;
  static const wl_callback_listener frameListener;

  WaylandConnection& connection_;
  bool shown_ = false;
  wl_surface* surface_ = nullptr;
  zwlr_layer_surface_v1* layer_ = nullptr;
  wl_output* surfaceOutput_ = nullptr;  // the output the layer surface was made for
  wl_callback* frameCallback_ = nullptr;
  bool configured_ = false;
  bool inputChanged_ = true;
  bool changedSinceFrame_ = false;
  QTimer frameSoon_;  // gathers a burst of scene changes into one frame
  QImage frame_;      // what the scene last drew, copied into a free buffer to show it
  std::array<std::unique_ptr<WaylandShmBuffer>, 3> buffers_;
};

}  // namespace tindra
