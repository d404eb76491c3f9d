#include "base/linux/wayland_seat.h"

#include <fcntl.h>
#include <linux/input-event-codes.h>
#include <unistd.h>
#include <wayland-client.h>

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <cerrno>

#include "base/linux/pipe_reader.h"
#include "base/linux/wayland_connection.h"

namespace tindra {

namespace {

WaylandSeat& self(void* data) {
  return *static_cast<WaylandSeat*>(data);
}

QPointF point(wl_fixed_t x, wl_fixed_t y) {
  return {wl_fixed_to_double(x), wl_fixed_to_double(y)};
}

Qt::MouseButton qtButton(std::uint32_t button) {
  switch (button) {
    case BTN_LEFT:
      return Qt::LeftButton;
    case BTN_RIGHT:
      return Qt::RightButton;
    case BTN_MIDDLE:
      return Qt::MiddleButton;
    default:
      return Qt::NoButton;
  }
}

const QString uriList = QStringLiteral("text/uri-list");

// The files of a text/uri-list: one address a line, comments skipped.
QList<QUrl> urlsIn(const QByteArray& list) {
  QList<QUrl> urls;
  for (const QByteArray& line : list.split('\n')) {
    const QByteArray address = line.trimmed();
    if (address.isEmpty() || address.startsWith('#')) continue;
    const QUrl url(QString::fromUtf8(address));
    if (url.isValid()) urls.push_back(url);
  }
  return urls;
}

}  // namespace

const wl_seat_listener WaylandSeat::seatListener = {
    .capabilities = [](void* data, wl_seat*,
                       std::uint32_t capabilities) { self(data).capabilities(capabilities); },
    .name = [](void*, wl_seat*, const char*) {},
};

const wl_pointer_listener WaylandSeat::pointerListener = {
    .enter = [](void* data, wl_pointer*, std::uint32_t serial, wl_surface* surface, wl_fixed_t x,
                wl_fixed_t y) { self(data).enter(surface, point(x, y), serial); },
    .leave = [](void* data, wl_pointer*, std::uint32_t, wl_surface*) { self(data).leave(); },
    .motion = [](void* data, wl_pointer*, std::uint32_t time, wl_fixed_t x,
                 wl_fixed_t y) { self(data).motion(point(x, y), time); },
    .button =
        [](void* data, wl_pointer*, std::uint32_t serial, std::uint32_t time, std::uint32_t button,
           std::uint32_t state) {
          self(data).button(serial, time, button, state == WL_POINTER_BUTTON_STATE_PRESSED);
        },
    .axis =
        [](void* data, wl_pointer*, std::uint32_t time, std::uint32_t axis, wl_fixed_t value) {
          // Wayland counts down and right as positive, Qt up and left.
          WaylandSeat& seat = self(data);
          const double amount = -wl_fixed_to_double(value);
          (axis == WL_POINTER_AXIS_VERTICAL_SCROLL ? seat.scroll_.pixels.ry()
                                                   : seat.scroll_.pixels.rx()) += amount;
          seat.lastTime_ = time;
        },
    .frame = [](void* data, wl_pointer*) { self(data).frame(); },
    .axis_source =
        [](void* data, wl_pointer*, std::uint32_t source) {
          self(data).scroll_.fingers = source == WL_POINTER_AXIS_SOURCE_FINGER ||
                                       source == WL_POINTER_AXIS_SOURCE_CONTINUOUS;
        },
    .axis_stop = [](void* data, wl_pointer*, std::uint32_t,
                    std::uint32_t) { self(data).scroll_.stopped = true; },
    .axis_discrete =
        [](void* data, wl_pointer*, std::uint32_t axis, std::int32_t discrete) {
          WaylandSeat& seat = self(data);
          (axis == WL_POINTER_AXIS_VERTICAL_SCROLL ? seat.scroll_.steps.ry()
                                                   : seat.scroll_.steps.rx()) -= discrete;
        },
    .axis_value120 = nullptr,
};

const wl_data_device_listener WaylandSeat::dataDeviceListener = {
    .data_offer = [](void* data, wl_data_device*,
                     wl_data_offer* offer) { self(data).newOffer(offer); },
    .enter =
        [](void* data, wl_data_device*, std::uint32_t serial, wl_surface* surface, wl_fixed_t x,
           wl_fixed_t y,
           wl_data_offer* offer) { self(data).dragEnter(serial, surface, point(x, y), offer); },
    .leave = [](void* data, wl_data_device*) { self(data).dragLeave(); },
    .motion = [](void* data, wl_data_device*, std::uint32_t, wl_fixed_t x,
                 wl_fixed_t y) { self(data).dragMotion(point(x, y)); },
    .drop = [](void* data, wl_data_device*) { self(data).drop(); },
    // The clipboard is no business of the notch's.
    .selection =
        [](void* data, wl_data_device*, wl_data_offer* offer) {
          WaylandSeat& seat = self(data);
          if (offer == nullptr) return;
          if (seat.pending_.offer == offer) seat.pending_ = {};
          wl_data_offer_destroy(offer);
        },
};

const wl_data_offer_listener WaylandSeat::offerListener = {
    .offer =
        [](void* data, wl_data_offer* offer, const char* type) {
          WaylandSeat& seat = self(data);
          if (seat.pending_.offer == offer) seat.pending_.types.push_back(QString::fromUtf8(type));
        },
    .source_actions = [](void*, wl_data_offer*, std::uint32_t) {},
    .action = [](void*, wl_data_offer*, std::uint32_t) {},
};

// Our own drag: the list goes to whichever program takes it, as often as it asks.
const wl_data_source_listener WaylandSeat::sourceListener = {
    .target = [](void*, wl_data_source*, const char*) {},
    .send =
        [](void* data, wl_data_source*, const char*, std::int32_t fd) {
          const QByteArray& list = self(data).draggedUris_;
          for (qsizetype written = 0; written < list.size();) {
            const ssize_t n = write(fd, list.constData() + written, list.size() - written);
            if (n <= 0 && errno != EINTR) break;
            if (n > 0) written += n;
          }
          close(fd);
        },
    .cancelled = [](void* data, wl_data_source*) { self(data).endFileDrag(); },
    .dnd_drop_performed = [](void*, wl_data_source*) {},
    .dnd_finished = [](void* data, wl_data_source*) { self(data).endFileDrag(); },
    .action = [](void*, wl_data_source*, std::uint32_t) {},
};

WaylandSeat::WaylandSeat(WaylandConnection& connection, wl_seat* seat)
    : connection_(connection), seat_(seat) {
  wl_seat_add_listener(seat_, &seatListener, this);
  if (connection_.dataDeviceManager() != nullptr) {
    dataDevice_ = wl_data_device_manager_get_data_device(connection_.dataDeviceManager(), seat_);
    wl_data_device_add_listener(dataDevice_, &dataDeviceListener, this);
  }
}

WaylandSeat::~WaylandSeat() {
  endFileDrag();
  dropReader_.reset();
  forgetOffer();
  if (pending_.offer) wl_data_offer_destroy(pending_.offer);
  if (dataDevice_) wl_data_device_destroy(dataDevice_);
  if (pointer_) wl_pointer_destroy(pointer_);
  wl_seat_destroy(seat_);
}

void WaylandSeat::route(wl_surface* surface, QWindow* window) {
  routes_.insert(surface, window);
}

void WaylandSeat::unroute(wl_surface* surface) {
  const QPointer<QWindow> window = routes_.take(surface);
  if (window && window == pointerWindow_) pointerWindow_ = nullptr;
  if (window && window == dragWindow_) dragWindow_ = nullptr;
}

bool WaylandSeat::startFileDrag(wl_surface* origin, const QList<QUrl>& urls) {
  if (dataDevice_ == nullptr || lastPressSerial_ == 0 || urls.isEmpty()) return false;
  endFileDrag();
  draggedUris_.clear();
  for (const QUrl& url : urls) draggedUris_ += url.toEncoded() + "\r\n";
  dragSource_ = wl_data_device_manager_create_data_source(connection_.dataDeviceManager());
  wl_data_source_add_listener(dragSource_, &sourceListener, this);
  wl_data_source_offer(dragSource_, "text/uri-list");
  if (wl_proxy_get_version(reinterpret_cast<wl_proxy*>(dragSource_)) >= 3) {
    wl_data_source_set_actions(dragSource_, WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY);
  }
  wl_data_device_start_drag(dataDevice_, dragSource_, origin, nullptr, lastPressSerial_);
  connection_.flush();
  // The compositor has the pointer now and no release comes to the window; it gets one, after
  // the handler that started the drag has returned, so that its press ends.
  QMetaObject::invokeMethod(
      this,
      [this] {
        buttons_ = Qt::NoButton;
        sendMouse(QEvent::MouseButtonRelease, Qt::LeftButton, lastTime_);
      },
      Qt::QueuedConnection);
  return true;
}

void WaylandSeat::endFileDrag() {
  if (dragSource_) wl_data_source_destroy(std::exchange(dragSource_, nullptr));
}

void WaylandSeat::capabilities(std::uint32_t capabilities) {
  const bool hasPointer = capabilities & WL_SEAT_CAPABILITY_POINTER;
  if (hasPointer && pointer_ == nullptr) {
    pointer_ = wl_seat_get_pointer(seat_);
    wl_pointer_add_listener(pointer_, &pointerListener, this);
  } else if (!hasPointer && pointer_ != nullptr) {
    wl_pointer_destroy(pointer_);
    pointer_ = nullptr;
  }
}

QPointF WaylandSeat::global(QPointF local) const {
  return pointerWindow_ ? local + pointerWindow_->geometry().topLeft() : local;
}

void WaylandSeat::enter(wl_surface* surface, QPointF position, std::uint32_t) {
  pointerWindow_ = routes_.value(surface);
  position_ = position;
  buttons_ = Qt::NoButton;
  if (!pointerWindow_) return;
  QEnterEvent event(position_, position_, global(position_));
  QCoreApplication::sendEvent(pointerWindow_, &event);
  sendMouse(QEvent::MouseMove, Qt::NoButton, lastTime_);
}

void WaylandSeat::leave() {
  if (pointerWindow_) {
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(pointerWindow_, &event);
  }
  pointerWindow_ = nullptr;
  buttons_ = Qt::NoButton;
}

void WaylandSeat::motion(QPointF position, std::uint32_t time) {
  position_ = position;
  lastTime_ = time;
  sendMouse(QEvent::MouseMove, Qt::NoButton, time);
}

void WaylandSeat::button(std::uint32_t serial, std::uint32_t time, std::uint32_t code,
                         bool pressed) {
  const Qt::MouseButton button = qtButton(code);
  if (button == Qt::NoButton) return;
  if (pressed) lastPressSerial_ = serial;
  buttons_.setFlag(button, pressed);
  sendMouse(pressed ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, button, time);
}

void WaylandSeat::sendMouse(QEvent::Type type, Qt::MouseButton button, std::uint32_t time) {
  if (!pointerWindow_) return;
  QMouseEvent event(type, position_, position_, global(position_), button, buttons_,
                    Qt::NoModifier);
  event.setTimestamp(time);
  QCoreApplication::sendEvent(pointerWindow_, &event);
}

// A frame closes one scroll step. Fingers on a touchpad give pixels and a stop when they lift
// (Qt's begin, update and end); a wheel gives detents, 120 eighths of a degree each.
void WaylandSeat::frame() {
  const Scroll scroll = std::exchange(scroll_, {});
  if (!pointerWindow_ || (scroll.pixels.isNull() && !scroll.stopped)) return;
  Qt::ScrollPhase phase = Qt::NoScrollPhase;
  if (scroll.fingers || scrolling_) {
    phase = scroll.stopped ? Qt::ScrollEnd : (scrolling_ ? Qt::ScrollUpdate : Qt::ScrollBegin);
    scrolling_ = !scroll.stopped;
  }
  const QPoint pixels = scroll.fingers ? scroll.pixels.toPoint() : QPoint();
  const QPoint angle = !scroll.steps.isNull() ? scroll.steps * 120 : scroll.pixels.toPoint() * 12;
  QWheelEvent event(position_, global(position_), pixels, angle, buttons_, Qt::NoModifier, phase,
                    false);
  event.setTimestamp(lastTime_);
  QCoreApplication::sendEvent(pointerWindow_, &event);
}

void WaylandSeat::newOffer(wl_data_offer* offer) {
  if (pending_.offer) wl_data_offer_destroy(pending_.offer);
  pending_ = {offer, {}};
  wl_data_offer_add_listener(offer, &offerListener, this);
}

void WaylandSeat::dragEnter(std::uint32_t serial, wl_surface* surface, QPointF position,
                            wl_data_offer* offer) {
  forgetOffer();
  if (offer == nullptr) return;  // a drag inside another program's own windows
  dragged_ = pending_.offer == offer ? std::exchange(pending_, {}) : Offer{offer, {}};
  dragWindow_ = routes_.value(surface);
  const bool files = dragged_.types.contains(uriList);
  wl_data_offer_accept(offer, serial, files && dragWindow_ ? "text/uri-list" : nullptr);
  if (wl_proxy_get_version(reinterpret_cast<wl_proxy*>(offer)) >= 3) {
    wl_data_offer_set_actions(offer, WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY,
                              WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY);
  }
  if (!dragWindow_) return;
  dragPosition_ = position;
  // The list itself comes with the drop; until then the window knows only that files come.
  QMimeData types;
  if (files) types.setData(uriList, {});
  QDragEnterEvent event(position.toPoint(), Qt::CopyAction, &types, buttons_, Qt::NoModifier);
  QCoreApplication::sendEvent(dragWindow_, &event);
}

void WaylandSeat::dragMotion(QPointF position) {
  dragPosition_ = position;
  if (!dragWindow_) return;
  QMimeData types;
  if (dragged_.types.contains(uriList)) types.setData(uriList, {});
  QDragMoveEvent event(position.toPoint(), Qt::CopyAction, &types, buttons_, Qt::NoModifier);
  QCoreApplication::sendEvent(dragWindow_, &event);
}

void WaylandSeat::dragLeave() {
  if (dragWindow_) {
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(dragWindow_, &event);
  }
  dragWindow_ = nullptr;
  forgetOffer();
}

// The drop is read from the dragging program through a pipe; the window gets it once the list
// is whole. The offer is kept until then and finished (or refused) after.
void WaylandSeat::drop() {
  const QPointer<QWindow> window = std::exchange(dragWindow_, nullptr);
  const Offer offer = std::exchange(dragged_, {});
  if (!window || offer.offer == nullptr || !offer.types.contains(uriList)) {
    if (offer.offer) wl_data_offer_destroy(offer.offer);
    return;
  }
  int fds[2];
  if (pipe2(fds, O_CLOEXEC) != 0) {
    wl_data_offer_destroy(offer.offer);
    return;
  }
  wl_data_offer_receive(offer.offer, "text/uri-list", fds[1]);
  close(fds[1]);
  connection_.flush();
  const QPointF position = dragPosition_;
  dropReader_ = std::make_unique<PipeReader>(
      fds[0], [this, window, offer, position](std::optional<QByteArray> list) {
        bool accepted = false;
        if (list && window) {
          QMimeData data;
          data.setUrls(urlsIn(*list));
          QDropEvent event(position, Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier);
          QCoreApplication::sendEvent(window, &event);
          accepted = event.isAccepted();
        }
        if (accepted && wl_proxy_get_version(reinterpret_cast<wl_proxy*>(offer.offer)) >= 3) {
          wl_data_offer_finish(offer.offer);
        }
        wl_data_offer_destroy(offer.offer);
        connection_.flush();
        // Only the newest drop's reader is ever kept, so this is it; it goes on the next turn, not
        // from inside its own call.
        dropReader_.release()->deleteLater();
      });
}

void WaylandSeat::forgetOffer() {
  if (dragged_.offer) wl_data_offer_destroy(dragged_.offer);
  dragged_ = {};
}

}  // namespace tindra
