// XcbConnection: a connection to the X server besides Qt's own, for the sources that follow X
// themselves (media keys, visibility); shared() gives them all the same one. Its socket wakes it,
// never a timer, and each event read goes to whoever subscribed to its type. A reply can bring
// events along into xcb's own queue, where the socket never tells of them, so every reply waited
// for through reply(), check() or internAtoms() has the queue emptied on the next turn of the
// event loop. Main thread only.
#pragma once

#include <xcb/xcb.h>

#include <QObject>
#include <QPointer>
#include <QSocketNotifier>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

#include "base/linux/intern_atoms.h"
#include "base/linux/xcb_reply.h"

namespace tindra {

class XcbConnection final : public QObject {
  Q_OBJECT

 public:
  using Handler = std::function<void(const xcb_generic_event_t&)>;

  // The connection everyone who asks shares, opened on first use and closed when the last holder
  // lets go.
  static std::shared_ptr<XcbConnection> shared();

  // A connection of its own to $DISPLAY (another client, as far as the server knows).
  XcbConnection();
  ~XcbConnection() override;

  // False when $DISPLAY could not be reached or the server has closed the connection since.
  bool isOpen() const { return xcb_connection_has_error(connection_) == 0; }
  xcb_connection_t* get() const { return connection_; }
  xcb_window_t root() const { return root_; }

  // `handler` hears every event of these types (XCB_KEY_PRESS…) for as long as `receiver` lives.
  void subscribe(QObject* receiver, std::initializer_list<std::uint8_t> types, Handler handler);

  // The reply to `cookie`, or none; `read` is xcb's reply function for its request.
  template <class Reply, class Cookie>
  XcbReply<Reply> reply(Reply* (*read)(xcb_connection_t*, Cookie, xcb_generic_error_t**),
                        Cookie cookie) {
    XcbReply<Reply> answer(read(connection_, cookie, nullptr));
    dispatchSoon();
    return answer;
  }
  // The error a checked request failed with, or none.
  XcbReply<xcb_generic_error_t> check(xcb_void_cookie_t cookie);
  // The atoms of `names`, in one round trip.
  template <std::size_t N>
  std::array<xcb_atom_t, N> internAtoms(const std::array<std::string_view, N>& names) {
    const std::array<xcb_atom_t, N> atoms = tindra::internAtoms(connection_, names);
    dispatchSoon();
    return atoms;
  }

  // Hands every event read so far to its subscribers.
  void dispatch();

 signals:
  // The server closed the connection; nothing more comes.
  void closed();

 private:
  struct Subscriber {
    QPointer<QObject> receiver;
    std::uint8_t type;
    Handler handler;
  };
  void dispatchSoon();

  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::vector<Subscriber> subscribers_;
  bool dispatchQueued_ = false;
};

}  // namespace tindra
