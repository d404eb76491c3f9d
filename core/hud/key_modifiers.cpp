#include "hud/key_modifiers.h"

namespace tindra {

KeyModifiers KeyModifiers::fromEventFlags(std::uint64_t flags) {
  KeyModifiers modifiers;
  if (flags & shiftFlag) modifiers = modifiers | shift();
  if (flags & controlFlag) modifiers = modifiers | control();
  if (flags & optionFlag) modifiers = modifiers | option();
  if (flags & commandFlag) modifiers = modifiers | command();
  return modifiers;
}

}  // namespace tindra
