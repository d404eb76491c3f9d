#include "hud/function_key_event.h"

namespace tindra {

std::optional<FunctionKeyEvent> FunctionKeyEvent::make(int keyCode, bool isKeyDown, bool isRepeat) {
  if (keyCode != brightnessDownKeyCode && keyCode != brightnessUpKeyCode) return std::nullopt;
  return FunctionKeyEvent{keyCode == brightnessUpKeyCode, isKeyDown, isRepeat};
}

}  // namespace tindra
