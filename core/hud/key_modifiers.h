// KeyModifiers: the modifier keys held with a key, as a set. Built from the platform's event
// flags; flags other than the four modifiers are ignored.
#pragma once

#include <cstdint>

namespace tindra {

class KeyModifiers {
 public:
  // The platform's event-flag bits for the four modifiers.
  static constexpr std::uint64_t shiftFlag = 0x20000;
  static constexpr std::uint64_t controlFlag = 0x40000;
  static constexpr std::uint64_t optionFlag = 0x80000;
  static constexpr std::uint64_t commandFlag = 0x100000;

  constexpr KeyModifiers() = default;
  constexpr explicit KeyModifiers(int rawValue) : rawValue_(rawValue) {}

  static constexpr KeyModifiers shift() { return KeyModifiers(1); }
  static constexpr KeyModifiers control() { return KeyModifiers(2); }
  static constexpr KeyModifiers option() { return KeyModifiers(4); }
  static constexpr KeyModifiers command() { return KeyModifiers(8); }

  static KeyModifiers fromEventFlags(std::uint64_t flags);

  constexpr int rawValue() const { return rawValue_; }
  constexpr bool isEmpty() const { return rawValue_ == 0; }
  // True when every modifier of `other` is held.
  constexpr bool contains(KeyModifiers other) const {
    return (rawValue_ & other.rawValue_) == other.rawValue_;
  }

  friend constexpr KeyModifiers operator|(KeyModifiers a, KeyModifiers b) {
    return KeyModifiers(a.rawValue_ | b.rawValue_);
  }
  friend bool operator==(const KeyModifiers&, const KeyModifiers&) = default;

 private:
  int rawValue_ = 0;
};

}  // namespace tindra
