#include "hud/key_modifiers.h"

namespace tindra {

KeyModifiers KeyModifiers::fromEventFlags(std::uint64_t flags) {
  KeyModifiers modifiers;
  if ((flags & shiftFlag) != 0) modifiers = modifiers | shift();
  if ((flags & controlFlag) != 0) modifiers = modifiers | control();
  if ((flags & optionFlag) != 0) modifiers = modifiers | option();
  if ((flags & commandFlag) != 0) modifiers = modifiers | command();
  return modifiers;
}

}  // namespace tindra
