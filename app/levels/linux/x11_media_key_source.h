// X11MediaKeySource: the media keys on an X11 desktop, through the shared XcbConnection to the X
// server. It holds each wanted key and modifier combination as a passive grab on the root window
// (whatever Num Lock and Caps Lock say), so those presses come to Tindra and not to the desktop;
// a grab that another program already holds is given up at once and reported. Keyboard layout
// changes are followed. Nothing is polled: the connection's socket wakes it.
#pragma once

#include <xcb/xcb.h>

#include <map>
#include <memory>
#include <set>

#include "base/linux/xcb_connection.h"
#include "levels/media_key_source.h"

namespace tindra {

class X11MediaKeySource final : public MediaKeySource {
  Q_OBJECT

 public:
  // On `connection`'s display; check() says so when there is none. The grabs belong to the
  // connection's client, so another program is a source on a connection of its own.
  explicit X11MediaKeySource(std::shared_ptr<XcbConnection> connection = XcbConnection::shared(),
                             QObject* parent = nullptr);
  ~X11MediaKeySource() override;

  void start() override {}
  void setWanted(const std::vector<KeyGrab>& wanted) override;
  std::vector<KeyGrab> refused() const override { return refused_; }

  // X's modifier bits and Tindra's: Alt is Option, Super is Command.
  static KeyModifiers modifiersFromState(std::uint16_t state);
  static std::uint16_t stateFromModifiers(KeyModifiers modifiers);

 private:
  void readKeyboardMapping();
  bool grab(const KeyGrab& combination);
  void ungrab(const KeyGrab& combination);
  void regrabAll();
  void handle(const xcb_generic_event_t& event);
  void closed();

  std::shared_ptr<XcbConnection> connection_;
  std::map<xcb_keycode_t, SystemDefinedKeyEvent::Key> keys_;
  std::vector<KeyGrab> wanted_;
  std::vector<KeyGrab> held_;
  std::vector<KeyGrab> refused_;
  std::set<xcb_keycode_t> down_;  // for telling auto-repeat from a new press
};

}  // namespace tindra
