// WaylandConnection: a connection to the Wayland compositor of Tindra's own, beside Qt's, for
// what Qt 6.4's public API cannot do: the notch as a layer surface and the other windows' states.
// It binds the globals, follows the outputs (name, logical geometry, scale, hot-plug) through
// wl_output and xdg-output, and hands the seat to WaylandSeat. Its socket wakes it, never a
// timer; requests are flushed before the event loop sleeps. Main thread only.
#pragma once

#include <QObject>
#include <QRect>
#include <QSocketNotifier>
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

struct wl_display;
struct wl_registry;
struct wl_compositor;
struct wl_shm;
struct wl_output;
struct wl_seat;
struct wl_data_device_manager;
struct wl_interface;
struct zwlr_layer_shell_v1;
struct zxdg_output_manager_v1;
struct zxdg_output_v1;
struct wl_registry_listener;
struct wl_output_listener;
struct zxdg_output_v1_listener;

namespace tindra {

class SharedBackends;
class WaylandSeat;

class WaylandConnection final : public QObject {
  Q_OBJECT

 public:
  struct Output {
    WaylandConnection* connection = nullptr;
    std::uint32_t global = 0;
    wl_output* output = nullptr;
    zxdg_output_v1* xdgOutput = nullptr;
    QString name;
    QRect geometry;  // logical, in the compositor's global space
    int scale = 1;
  };

  // Connects to $WAYLAND_DISPLAY and reads its globals and outputs (two round trips). Not open
  // when there is no compositor to reach.
  WaylandConnection();
  ~WaylandConnection() override;

  // The one connection of the program, shared by the notch windows and the visibility source.
  static std::shared_ptr<WaylandConnection> shared(SharedBackends& shared);
  // Whether $WAYLAND_DISPLAY's compositor offers the layer shell, asked before Qt starts.
  static bool compositorOffersLayerShell();

  // False when the compositor could not be reached or has closed the connection since.
  bool isOpen() const;
  wl_compositor* compositor() const { return compositor_; }
  wl_shm* shm() const { return shm_; }
  zwlr_layer_shell_v1* layerShell() const { return layerShell_; }
  wl_data_device_manager* dataDeviceManager() const { return dataDeviceManager_; }
  // The seat's pointer and drags; null until the compositor announced a seat.
  WaylandSeat* seat() const { return seat_.get(); }

  // Binds the global of `interface`, at its version or `maxVersion` if lower; null when the
  // compositor has none.
  void* bind(const wl_interface& interface, std::uint32_t maxVersion);

  const Output* output(const QString& name) const;
  const Output* output(const wl_output* output) const;

  // Sends what is queued now rather than before the event loop next sleeps.
  void flush();

 signals:
  void outputsChanged();

 private:
  struct Global {
    std::uint32_t name;
    QString interface;
    std::uint32_t version;
  };

  void announce(std::uint32_t name, const char* interface, std::uint32_t version);
  void withdraw(std::uint32_t name);
  void addOutput(std::uint32_t name, std::uint32_t version);
  void followXdgOutput(Output& output);
  void readEvents();
  void checkError();
  Output* find(const wl_output* output);

  static const wl_registry_listener registryListener;
  static const wl_output_listener outputListener;
  static const zxdg_output_v1_listener xdgOutputListener;

  wl_display* display_ = nullptr;
  wl_registry* registry_ = nullptr;
  wl_compositor* compositor_ = nullptr;
  wl_shm* shm_ = nullptr;
  zwlr_layer_shell_v1* layerShell_ = nullptr;
  zxdg_output_manager_v1* xdgOutputManager_ = nullptr;
  wl_data_device_manager* dataDeviceManager_ = nullptr;
  std::unique_ptr<WaylandSeat> seat_;
  std::vector<Global> globals_;
  std::vector<std::unique_ptr<Output>> outputs_;
  std::unique_ptr<QSocketNotifier> notifier_;
  QMetaObject::Connection flushBeforeSleep_;
  bool lost_ = false;  // the compositor closed the connection (it quit or found a protocol error)
};

}  // namespace tindra
