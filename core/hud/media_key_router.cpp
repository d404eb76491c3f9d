#include "hud/media_key_router.h"

namespace tindra {

namespace {

using Key = SystemDefinedKeyEvent::Key;
using Decision = MediaKeyDecision;
using Action = MediaKeyAction;

Decision decideVolume(Key key, bool isKeyDown, bool isRepeat, bool fine,
                      const MediaKeyContext& context) {
  if (!context.volumeHUDEnabled || !context.volumeControllable) return Decision::passThrough();
  if (key == Key::mute && !context.volumeHasMute) return Decision::passThrough();
  if (!isKeyDown) return Decision::swallow();
  switch (key) {
    case Key::soundUp:
      return Decision::swallow(Action::volume(VolumeAction::up(fine)));
    case Key::soundDown:
      return Decision::swallow(Action::volume(VolumeAction::down(fine)));
    default:
      // Holding mute toggles once, not on every repeat.
      if (isRepeat) return Decision::swallow();
      return Decision::swallow(Action::volume(VolumeAction::toggleMute()));
  }
}

Decision decideBrightness(bool up, bool isKeyDown, bool fine, const MediaKeyContext& context) {
  if (!context.brightnessHUDEnabled) return Decision::passThrough();
  switch (context.brightness) {
    case BrightnessAccess::readWrite:
      return isKeyDown ? Decision::swallow(Action::brightness(up, fine)) : Decision::swallow();
    case BrightnessAccess::readOnly:
      return isKeyDown ? Decision::observe(Action::showBrightnessAfterSystemChange())
                       : Decision::passThrough();
    case BrightnessAccess::unavailable:
      return Decision::passThrough();
  }
  return Decision::passThrough();
}

Decision decideKeyboardBacklight(bool up, bool isKeyDown, bool fine,
                                 const MediaKeyContext& context) {
  switch (context.keyboardBacklight) {
    case KeyboardBacklightAccess::readWrite:
      return isKeyDown ? Decision::swallow(Action::keyboardBacklight(up, fine))
                       : Decision::swallow();
    case KeyboardBacklightAccess::readOnly:
      return isKeyDown ? Decision::observe(Action::showKeyboardBacklightAfterSystemChange())
                       : Decision::passThrough();
    case KeyboardBacklightAccess::unavailable:
      return Decision::passThrough();
  }
  return Decision::passThrough();
}

}  // namespace

MediaKeyDecision MediaKeyRouter::decide(std::optional<Key> key, bool isKeyDown, bool isRepeat,
                                        KeyModifiers modifiers, const MediaKeyContext& context) {
  if (!key) return Decision::passThrough();
  if (modifiers.contains(KeyModifiers::control()) || modifiers.contains(KeyModifiers::command())) {
    return Decision::passThrough();
  }
  // Option alone keeps its system meaning (opening the sound or display settings).
  const bool option = modifiers.contains(KeyModifiers::option());
  if (option && !modifiers.contains(KeyModifiers::shift())) return Decision::passThrough();
  const bool fine = option;

  switch (*key) {
    case Key::soundUp:
    case Key::soundDown:
    case Key::mute:
      return decideVolume(*key, isKeyDown, isRepeat, fine, context);
    case Key::brightnessUp:
    case Key::brightnessDown:
      return decideBrightness(*key == Key::brightnessUp, isKeyDown, fine, context);
    case Key::illuminationUp:
    case Key::illuminationDown:
      return decideKeyboardBacklight(*key == Key::illuminationUp, isKeyDown, fine, context);
    default:
      // Transport keys stay with the system.
      return Decision::passThrough();
  }
}

MediaKeyDecision MediaKeyRouter::decideFunctionKey(const FunctionKeyEvent& event,
                                                   KeyModifiers modifiers,
                                                   const MediaKeyContext& context) {
  if (!event.isKeyDown || !modifiers.isEmpty() || !context.brightnessHUDEnabled) {
    return Decision::passThrough();
  }
  switch (context.brightness) {
    case BrightnessAccess::readWrite:
      return Decision::swallow(Action::brightness(event.isBrightnessUp, false));
    case BrightnessAccess::readOnly:
      return Decision::observe(Action::showBrightnessAfterSystemChange());
    case BrightnessAccess::unavailable:
      return Decision::passThrough();
  }
  return Decision::passThrough();
}

}  // namespace tindra
