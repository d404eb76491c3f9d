#include "hud/system_defined_key_event.h"

namespace tindra {

namespace {
constexpr std::uint64_t keyDownState = 0x0A;
constexpr std::uint64_t keyUpState = 0x0B;
}  // namespace

std::optional<SystemDefinedKeyEvent> SystemDefinedKeyEvent::decode(int subtype,
                                                                   std::int64_t data1) {
  if (subtype != auxControlButtonsSubtype) return std::nullopt;
  const auto bits = static_cast<std::uint64_t>(data1);
  const std::uint64_t state = (bits >> 8) & 0xFF;
  if (state != keyDownState && state != keyUpState) return std::nullopt;
  return SystemDefinedKeyEvent{static_cast<int>((bits >> 16) & 0xFFFF), state == keyDownState,
                               (bits & 1) != 0};
}

std::optional<SystemDefinedKeyEvent::Key> SystemDefinedKeyEvent::key() const {
  return enumFromRaw<Key>(keyCode);
}

}  // namespace tindra
