#include "levels/linux/x11_media_key_source.h"

// xcb's XKB header names a member `explicit`, which C++ reserves.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/linux/xcb_reply.h"
#include "base/logging_categories.h"

namespace tindra {

namespace {

using Key = SystemDefinedKeyEvent::Key;

// The XF86 keysyms of the keys Tindra may take.
constexpr std::array<std::pair<xcb_keysym_t, Key>, 7> keysyms{{
    {0x1008FF13, Key::soundUp},           // XF86AudioRaiseVolume
    {0x1008FF11, Key::soundDown},         // XF86AudioLowerVolume
    {0x1008FF12, Key::mute},              // XF86AudioMute
    {0x1008FF02, Key::brightnessUp},      // XF86MonBrightnessUp
    {0x1008FF03, Key::brightnessDown},    // XF86MonBrightnessDown
    {0x1008FF05, Key::illuminationUp},    // XF86KbdBrightnessUp
    {0x1008FF06, Key::illuminationDown},  // XF86KbdBrightnessDown
}};

// Caps Lock and Num Lock (Mod2 on every common layout) must not stop a grab from matching.
constexpr std::array<std::uint16_t, 4> lockVariants{0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2,
                                                    XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

}  // namespace

X11MediaKeySource::X11MediaKeySource(std::shared_ptr<XcbConnection> connection, QObject* parent)
    : MediaKeySource(parent), connection_(std::move(connection)) {
  if (!connection_->isOpen()) {
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("no X display: the keys stay with the desktop, and the level "
                                 "changes it makes are shown"),
                      tr));
    return;
  }
  xcb_connection_t* x = connection_->get();
  // Auto-repeat as repeated presses without releases in between, so a held key is seen as one.
  // The flag is the connection's, which no other user of it minds.
  connection_->reply(xcb_xkb_use_extension_reply,
                     xcb_xkb_use_extension(x, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION));
  connection_->reply(xcb_xkb_per_client_flags_reply,
                     xcb_xkb_per_client_flags(
                         x, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT,
                         XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT, 0, 0, 0));
  readKeyboardMapping();

  connection_->subscribe(this, {XCB_KEY_PRESS, XCB_KEY_RELEASE, XCB_MAPPING_NOTIFY},
                         [this](const xcb_generic_event_t& event) { handle(event); });
  connect(connection_.get(), &XcbConnection::closed, this, &X11MediaKeySource::closed);
  setCheck(DiagnosticsLog::Outcome::ok, Sentence(QT_TR_NOOP("holding no keys"), tr));
}

// The connection may stay open for others: the keys go back to the desktop now.
X11MediaKeySource::~X11MediaKeySource() {
  if (!connection_->isOpen()) return;
  for (const KeyGrab& combination : held_) ungrab(combination);
  xcb_flush(connection_->get());
}

KeyModifiers X11MediaKeySource::modifiersFromState(std::uint16_t state) {
  KeyModifiers modifiers;
  if ((state & XCB_MOD_MASK_SHIFT) != 0) modifiers = modifiers | KeyModifiers::shift();
  if ((state & XCB_MOD_MASK_CONTROL) != 0) modifiers = modifiers | KeyModifiers::control();
  if ((state & XCB_MOD_MASK_1) != 0) modifiers = modifiers | KeyModifiers::option();
  if ((state & XCB_MOD_MASK_4) != 0) modifiers = modifiers | KeyModifiers::command();
  return modifiers;
}

std::uint16_t X11MediaKeySource::stateFromModifiers(KeyModifiers modifiers) {
  std::uint16_t state = 0;
  if (modifiers.contains(KeyModifiers::shift())) state |= XCB_MOD_MASK_SHIFT;
  if (modifiers.contains(KeyModifiers::control())) state |= XCB_MOD_MASK_CONTROL;
  if (modifiers.contains(KeyModifiers::option())) state |= XCB_MOD_MASK_1;
  if (modifiers.contains(KeyModifiers::command())) state |= XCB_MOD_MASK_4;
  return state;
}

void X11MediaKeySource::readKeyboardMapping() {
  keys_.clear();
  xcb_connection_t* x = connection_->get();
  const xcb_setup_t* setup = xcb_get_setup(x);
  const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const XcbReply<xcb_get_keyboard_mapping_reply_t> mapping = connection_->reply(
      xcb_get_keyboard_mapping_reply, xcb_get_keyboard_mapping(x, setup->min_keycode, count));
  if (!mapping || mapping->keysyms_per_keycode == 0) return;
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  const int length = xcb_get_keyboard_mapping_keysyms_length(mapping.get());
  for (int i = 0; i < length; ++i) {
    for (const auto& [keysym, key] : keysyms) {
      if (symbols[i] != keysym) continue;
      keys_.emplace(
          static_cast<xcb_keycode_t>(setup->min_keycode + i / mapping->keysyms_per_keycode), key);
    }
  }
}

bool X11MediaKeySource::grab(const KeyGrab& combination) {
  const std::uint16_t state = stateFromModifiers(combination.modifiers);
  std::vector<xcb_void_cookie_t> cookies;
  for (const auto& [code, key] : keys_) {
    if (key != combination.key) continue;
    for (const std::uint16_t lock : lockVariants) {
      cookies.push_back(xcb_grab_key_checked(connection_->get(), 1, connection_->root(),
                                             state | lock, code, XCB_GRAB_MODE_ASYNC,
                                             XCB_GRAB_MODE_ASYNC));
    }
  }
  bool held = !cookies.empty();
  for (const xcb_void_cookie_t cookie : cookies) {
    // BadAccess: another program holds this combination.
    if (connection_->check(cookie)) held = false;
  }
  if (!held) ungrab(combination);
  return held;
}

void X11MediaKeySource::ungrab(const KeyGrab& combination) {
  const std::uint16_t state = stateFromModifiers(combination.modifiers);
  for (const auto& [code, key] : keys_) {
    if (key != combination.key) continue;
    for (const std::uint16_t lock : lockVariants) {
      xcb_ungrab_key(connection_->get(), code, connection_->root(), state | lock);
    }
  }
}

void X11MediaKeySource::setWanted(const std::vector<KeyGrab>& wanted) {
  if (!connection_->isOpen()) return;
  wanted_ = wanted;
  std::erase_if(held_, [&](const KeyGrab& combination) {
    const bool unwanted = std::ranges::find(wanted, combination) == wanted.end();
    if (unwanted) ungrab(combination);
    return unwanted;
  });
  refused_.clear();
  for (const KeyGrab& combination : wanted) {
    if (std::ranges::find(held_, combination) != held_.end()) continue;
    if (grab(combination)) {
      held_.push_back(combination);
    } else {
      refused_.push_back(combination);
    }
  }
  // A round trip, so that the server has taken the releases too before anyone else asks.
  connection_->reply(xcb_get_input_focus_reply, xcb_get_input_focus(connection_->get()));
  setCheck(refused_.empty() ? DiagnosticsLog::Outcome::ok : DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("holding %1 key combinations, %2 held by another program"), tr)
               .arg(held_.size())
               .arg(refused_.size()));
}

void X11MediaKeySource::regrabAll() {
  for (const KeyGrab& combination : held_) ungrab(combination);
  readKeyboardMapping();
  held_.clear();
  setWanted(std::vector<KeyGrab>(wanted_));
}

void X11MediaKeySource::closed() {
  held_.clear();
  setCheck(
      DiagnosticsLog::Outcome::degraded,
      Sentence(QT_TR_NOOP("the X server closed the connection: the keys stay with the desktop"),
               tr));
}

void X11MediaKeySource::handle(const xcb_generic_event_t& event) {
  const auto type = static_cast<std::uint8_t>(event.response_type & 0x7f);
  if (type == XCB_MAPPING_NOTIFY) {
    const auto& mapping = reinterpret_cast<const xcb_mapping_notify_event_t&>(event);
    if (mapping.request == XCB_MAPPING_KEYBOARD) regrabAll();
    return;
  }
  if (type != XCB_KEY_PRESS && type != XCB_KEY_RELEASE) return;
  const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
  const auto found = keys_.find(key.detail);
  if (found == keys_.end()) return;
  const bool isKeyDown = type == XCB_KEY_PRESS;
  const bool isRepeat = isKeyDown && down_.contains(key.detail);
  if (isKeyDown) {
    down_.insert(key.detail);
  } else {
    down_.erase(key.detail);
  }
  emit pressed(MediaKeyPress{found->second, isKeyDown, isRepeat, modifiersFromState(key.state),
                             std::chrono::steady_clock::now()});
}

}  // namespace tindra
