// SystemDefinedKeyEvent: a media key (volume, brightness, keyboard light, transport) decoded from
// a system-defined event's subtype and first data word. Only key downs and key ups decode.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace tindra {

struct SystemDefinedKeyEvent {
  // The auxiliary-key codes the system uses.
  enum class Key {
    soundUp = 0,
    soundDown = 1,
    brightnessUp = 2,
    brightnessDown = 3,
    mute = 7,
    play = 16,
    next = 17,
    previous = 18,
    fast = 19,
    rewind = 20,
    illuminationUp = 21,
    illuminationDown = 22,
  };

  // The event type of system-defined events, and their subtype for auxiliary control buttons.
  static constexpr int eventType = 14;
  static constexpr int auxControlButtonsSubtype = 8;

  int keyCode = 0;
  bool isKeyDown = false;
  bool isRepeat = false;

  // None unless `subtype` is the auxiliary-button one and `data1` holds a key down or key up.
  static std::optional<SystemDefinedKeyEvent> decode(int subtype, std::int64_t data1);

  // The key, if the code is one of the known ones.
  std::optional<Key> key() const;

  friend bool operator==(const SystemDefinedKeyEvent&, const SystemDefinedKeyEvent&) = default;
};

inline constexpr std::array<SystemDefinedKeyEvent::Key, 12> allSystemDefinedKeys{
    SystemDefinedKeyEvent::Key::soundUp,        SystemDefinedKeyEvent::Key::soundDown,
    SystemDefinedKeyEvent::Key::brightnessUp,   SystemDefinedKeyEvent::Key::brightnessDown,
    SystemDefinedKeyEvent::Key::mute,           SystemDefinedKeyEvent::Key::play,
    SystemDefinedKeyEvent::Key::next,           SystemDefinedKeyEvent::Key::previous,
    SystemDefinedKeyEvent::Key::fast,           SystemDefinedKeyEvent::Key::rewind,
    SystemDefinedKeyEvent::Key::illuminationUp, SystemDefinedKeyEvent::Key::illuminationDown};

constexpr int rawValue(SystemDefinedKeyEvent::Key key) {
  return static_cast<int>(key);
}
// No key for codes the system does not use for these keys.
std::optional<SystemDefinedKeyEvent::Key> systemDefinedKeyFromRaw(int raw);

}  // namespace tindra
