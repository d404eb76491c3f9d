#include "base/linux/xcb_connection.h"

#include <algorithm>

namespace tindra {

std::shared_ptr<XcbConnection> XcbConnection::shared() {
  static std::weak_ptr<XcbConnection> shared;
  std::shared_ptr<XcbConnection> connection = shared.lock();
  if (!connection) {
    connection = std::make_shared<XcbConnection>();
    shared = connection;
  }
  return connection;
}

XcbConnection::XcbConnection() {
  int screen = 0;
  connection_ = xcb_connect(nullptr, &screen);
  if (!isOpen()) return;
  xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection_));
  for (int i = 0; i < screen && screens.rem > 0; ++i) xcb_screen_next(&screens);
  root_ = screens.data->root;
  notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_),
                                                QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &XcbConnection::dispatch);
}

XcbConnection::~XcbConnection() {
  notifier_.reset();
  xcb_disconnect(connection_);
}

void XcbConnection::subscribe(QObject* receiver, std::initializer_list<std::uint8_t> types,
                              Handler handler) {
  std::erase_if(subscribers_, [](const Subscriber& subscriber) { return !subscriber.receiver; });
  for (const std::uint8_t type : types) subscribers_.push_back({receiver, type, handler});
}

XcbReply<xcb_generic_error_t> XcbConnection::check(xcb_void_cookie_t cookie) {
  XcbReply<xcb_generic_error_t> error(xcb_request_check(connection_, cookie));
  dispatchSoon();
  return error;
}

void XcbConnection::dispatchSoon() {
  if (dispatchQueued_) return;
  dispatchQueued_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        dispatchQueued_ = false;
        dispatch();
      },
      Qt::QueuedConnection);
}

void XcbConnection::dispatch() {
  if (!notifier_ || !notifier_->isEnabled()) return;  // never open, or closed since
  while (XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
    const auto type = static_cast<std::uint8_t>(event->response_type & 0x7f);
    // By index, each handler copied first: a handler may subscribe or wait for a reply.
    for (std::size_t i = 0; i < subscribers_.size(); ++i) {
      if (subscribers_[i].type != type || !subscribers_[i].receiver) continue;
      const Handler handler = subscribers_[i].handler;
      handler(*event);
    }
  }
  if (!isOpen()) {
    notifier_->setEnabled(false);
    emit closed();
  }
}

}  // namespace tindra
