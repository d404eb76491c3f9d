// WaylandSeat: the seat's pointer and drags on Tindra's own Wayland connection, turned into the Qt
// events a window would get from Qt itself (enter, leave, moves, buttons, wheels and two-finger
// scrolls, drags and drops of files) and sent to the window that registered the surface under the
// pointer. Drops are read from the dragging program without waiting: the drop event follows once
// the whole list has arrived. Main thread only.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QWindow>
#include <cstdint>
#include <memory>

struct wl_seat;
struct wl_pointer;
struct wl_surface;
struct wl_data_device;
struct wl_data_offer;
struct wl_data_source;
struct wl_data_source_listener;
struct wl_seat_listener;
struct wl_pointer_listener;
struct wl_data_device_listener;
struct wl_data_offer_listener;

namespace tindra {

class WaylandConnection;
class PipeReader;

class WaylandSeat final : public QObject {
  Q_OBJECT

 public:
  WaylandSeat(WaylandConnection& connection, wl_seat* seat);
  ~WaylandSeat() override;

  // Events on `surface` go to `window`, with positions in its coordinates, while it lives.
  void route(wl_surface* surface, QWindow* window);
  void unroute(wl_surface* surface);

  // Starts dragging `urls` out of `origin` with the button pressed last, for any program that
  // takes files; false when the compositor has no drag and drop or no press to start from.
  bool startFileDrag(wl_surface* origin, const QList<QUrl>& urls);

 private:
  struct Offer {
    wl_data_offer* offer = nullptr;
    QStringList types;
  };
  struct Scroll {
    QPointF pixels;
    QPoint steps;
    bool fingers = false;
    bool stopped = false;
  };

  void capabilities(std::uint32_t capabilities);
  void enter(wl_surface* surface, QPointF position, std::uint32_t serial);
  void leave();
  void motion(QPointF position, std::uint32_t time);
  void button(std::uint32_t serial, std::uint32_t time, std::uint32_t button, bool pressed);
  void frame();
  void sendMouse(QEvent::Type type, Qt::MouseButton button, std::uint32_t time);
  QPointF global(QPointF local) const;

  void newOffer(wl_data_offer* offer);
  void dragEnter(std::uint32_t serial, wl_surface* surface, QPointF position, wl_data_offer* offer);
  void dragMotion(QPointF position);
  void dragLeave();
  void drop();
  void forgetOffer();
  void endFileDrag();

  static const wl_seat_listener seatListener;
  static const wl_pointer_listener pointerListener;
  static const wl_data_device_listener dataDeviceListener;
  static const wl_data_offer_listener offerListener;
  static const wl_data_source_listener sourceListener;

  WaylandConnection& connection_;
  wl_seat* seat_;
  wl_pointer* pointer_ = nullptr;
  wl_data_device* dataDevice_ = nullptr;
  QHash<wl_surface*, QPointer<QWindow>> routes_;

  QPointer<QWindow> pointerWindow_;
  QPointF position_;
  Qt::MouseButtons buttons_;
  std::uint32_t lastPressSerial_ = 0;
  std::uint32_t lastTime_ = 0;
  Scroll scroll_;
  bool scrolling_ = false;

  Offer pending_;  // announced, not yet entered
  Offer dragged_;
  QPointer<QWindow> dragWindow_;
  QPointF dragPosition_;
  std::unique_ptr<PipeReader> dropReader_;
  wl_data_source* dragSource_ = nullptr;  // a drag of ours, until it ends
  QByteArray draggedUris_;
};

}  // namespace tindra
