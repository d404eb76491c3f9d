// SystemDefinedKeyEvent: a media key (volume, brightness, keyboard light, transport) decoded from
// a system-defined event's subtype and first data word. Only key downs and key ups decode.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "base/enum_table.h"

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

// The raw value is the system's key code; codes of other keys have no case.
template <>
struct EnumTable<SystemDefinedKeyEvent::Key> {
  using Key = SystemDefinedKeyEvent::Key;
  static constexpr std::array cases{EnumCase{Key::soundUp, 0, "soundUp"},
                                    EnumCase{Key::soundDown, 1, "soundDown"},
                                    EnumCase{Key::brightnessUp, 2, "brightnessUp"},
                                    EnumCase{Key::brightnessDown, 3, "brightnessDown"},
                                    EnumCase{Key::mute, 7, "mute"},
                                    EnumCase{Key::play, 16, "play"},
                                    EnumCase{Key::next, 17, "next"},
                                    EnumCase{Key::previous, 18, "previous"},
                                    EnumCase{Key::fast, 19, "fast"},
                                    EnumCase{Key::rewind, 20, "rewind"},
                                    EnumCase{Key::illuminationUp, 21, "illuminationUp"},
                                    EnumCase{Key::illuminationDown, 22, "illuminationDown"}};
};

}  // namespace tindra
