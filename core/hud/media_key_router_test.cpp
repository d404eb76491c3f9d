#include "hud/media_key_router.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Key = SystemDefinedKeyEvent::Key;
using Decision = MediaKeyDecision;
using Action = MediaKeyAction;

const KeyModifiers none;
const KeyModifiers shift = KeyModifiers::shift();
const KeyModifiers option = KeyModifiers::option();
const KeyModifiers optionShift = KeyModifiers::option() | KeyModifiers::shift();

MediaKeyContext everythingControllable() {
  return {true, true, true, true, BrightnessAccess::readWrite, KeyboardBacklightAccess::readWrite};
}

Decision down(Key key, KeyModifiers modifiers = {},
              const MediaKeyContext& context = everythingControllable()) {
  return MediaKeyRouter::decide(key, true, false, modifiers, context);
}
Decision up(Key key, const MediaKeyContext& context = everythingControllable()) {
  return MediaKeyRouter::decide(key, false, false, {}, context);
}
Decision repeat(Key key, const MediaKeyContext& context = everythingControllable()) {
  return MediaKeyRouter::decide(key, true, true, {}, context);
}

TEST(MediaKeyRouter, ModifiersDecideBeforeTheKey) {
  const auto volumeUp = [](bool fine) {
    return Decision::swallow(Action::volume(VolumeAction::up(fine)));
  };
  EXPECT_EQ(down(Key::soundUp), volumeUp(false));
  EXPECT_EQ(down(Key::soundUp, shift), volumeUp(false));
  EXPECT_EQ(down(Key::soundUp, optionShift), volumeUp(true));
  EXPECT_EQ(down(Key::soundUp, option), Decision::passThrough());
  EXPECT_EQ(down(Key::soundUp, KeyModifiers::command()), Decision::passThrough());
  EXPECT_EQ(down(Key::soundUp, KeyModifiers::control() | shift), Decision::passThrough());
  EXPECT_EQ(down(Key::soundUp, optionShift | KeyModifiers::command()), Decision::passThrough());
  // Option alone passes even a key up that would otherwise be swallowed.
  EXPECT_EQ(MediaKeyRouter::decide(Key::soundUp, false, false, option, everythingControllable()),
            Decision::passThrough());
  EXPECT_EQ(down(Key::brightnessDown, optionShift),
            Decision::swallow(Action::brightness(false, true)));
  EXPECT_EQ(down(Key::illuminationUp, optionShift),
            Decision::swallow(Action::keyboardBacklight(true, true)));
  EXPECT_EQ(down(Key::mute, optionShift),
            Decision::swallow(Action::volume(VolumeAction::toggleMute())));
  EXPECT_EQ(MediaKeyRouter::decide(std::nullopt, true, false, none, everythingControllable()),
            Decision::passThrough());
}

TEST(MediaKeyRouter, VolumeKeys) {
  EXPECT_EQ(down(Key::soundDown), Decision::swallow(Action::volume(VolumeAction::down(false))));
  EXPECT_EQ(repeat(Key::soundDown), Decision::swallow(Action::volume(VolumeAction::down(false))));
  EXPECT_EQ(up(Key::soundUp), Decision::swallow());

  MediaKeyContext disabled = everythingControllable();
  disabled.volumeHUDEnabled = false;
  MediaKeyContext yielded = everythingControllable();
  yielded.volumeControllable = false;
  for (const MediaKeyContext& context : {disabled, yielded}) {
    for (Key key : {Key::soundUp, Key::soundDown, Key::mute}) {
      EXPECT_EQ(down(key, none, context), Decision::passThrough());
      EXPECT_EQ(up(key, context), Decision::passThrough());
    }
  }
}

TEST(MediaKeyRouter, MuteTogglesOnceAndNeedsAMuteControl) {
  EXPECT_EQ(down(Key::mute), Decision::swallow(Action::volume(VolumeAction::toggleMute())));
  EXPECT_EQ(repeat(Key::mute), Decision::swallow());
  EXPECT_EQ(up(Key::mute), Decision::swallow());

  MediaKeyContext noMute = everythingControllable();
  noMute.volumeHasMute = false;
  EXPECT_EQ(down(Key::mute, none, noMute), Decision::passThrough());
  EXPECT_EQ(up(Key::mute, noMute), Decision::passThrough());
  EXPECT_EQ(repeat(Key::mute, noMute), Decision::passThrough());
  // The other volume keys do not need it.
  EXPECT_EQ(down(Key::soundUp, none, noMute),
            Decision::swallow(Action::volume(VolumeAction::up(false))));
  EXPECT_EQ(up(Key::soundUp, noMute), Decision::swallow());
}

TEST(MediaKeyRouter, BrightnessKeysByAccess) {
  EXPECT_EQ(down(Key::brightnessUp), Decision::swallow(Action::brightness(true, false)));
  EXPECT_EQ(repeat(Key::brightnessDown), Decision::swallow(Action::brightness(false, false)));
  EXPECT_EQ(up(Key::brightnessUp), Decision::swallow());

  MediaKeyContext readOnly = everythingControllable();
  readOnly.brightness = BrightnessAccess::readOnly;
  EXPECT_EQ(down(Key::brightnessDown, none, readOnly),
            Decision::observe(Action::showBrightnessAfterSystemChange()));
  EXPECT_EQ(down(Key::brightnessDown, optionShift, readOnly),
            Decision::observe(Action::showBrightnessAfterSystemChange()));
  EXPECT_EQ(up(Key::brightnessDown, readOnly), Decision::passThrough());

  MediaKeyContext unavailable = everythingControllable();
  unavailable.brightness = BrightnessAccess::unavailable;
  EXPECT_EQ(down(Key::brightnessUp, none, unavailable), Decision::passThrough());

  MediaKeyContext disabled = everythingControllable();
  disabled.brightnessHUDEnabled = false;
  EXPECT_EQ(down(Key::brightnessUp, none, disabled), Decision::passThrough());
  EXPECT_EQ(up(Key::brightnessUp, disabled), Decision::passThrough());
  // The brightness switch does not reach the keyboard keys.
  EXPECT_EQ(down(Key::illuminationUp, none, disabled),
            Decision::swallow(Action::keyboardBacklight(true, false)));
}

TEST(MediaKeyRouter, KeyboardBacklightKeysByAccess) {
  EXPECT_EQ(down(Key::illuminationDown),
            Decision::swallow(Action::keyboardBacklight(false, false)));
  EXPECT_EQ(up(Key::illuminationDown), Decision::swallow());
  MediaKeyContext readOnly = everythingControllable();
  readOnly.keyboardBacklight = KeyboardBacklightAccess::readOnly;
  EXPECT_EQ(down(Key::illuminationUp, none, readOnly),
            Decision::observe(Action::showKeyboardBacklightAfterSystemChange()));
  EXPECT_EQ(up(Key::illuminationUp, readOnly), Decision::passThrough());
  MediaKeyContext unavailable = everythingControllable();
  unavailable.keyboardBacklight = KeyboardBacklightAccess::unavailable;
  EXPECT_EQ(down(Key::illuminationUp, none, unavailable), Decision::passThrough());
  EXPECT_EQ(up(Key::illuminationUp, unavailable), Decision::passThrough());
}

TEST(MediaKeyRouter, TransportKeysStayWithTheSystem) {
  for (Key key : {Key::play, Key::next, Key::previous, Key::fast, Key::rewind}) {
    EXPECT_EQ(down(key), Decision::passThrough());
    EXPECT_EQ(up(key), Decision::passThrough());
  }
}

TEST(MediaKeyRouter, FunctionKeys) {
  MediaKeyContext context = everythingControllable();
  const auto decide = [&](bool up, bool isKeyDown, bool isRepeat, KeyModifiers modifiers = {}) {
    return MediaKeyRouter::decideFunctionKey({up, isKeyDown, isRepeat}, modifiers, context);
  };
  EXPECT_EQ(decide(true, true, false), Decision::swallow(Action::brightness(true, false)));
  EXPECT_EQ(decide(false, true, true), Decision::swallow(Action::brightness(false, false)));
  EXPECT_EQ(decide(true, false, false), Decision::passThrough());
  // Any modifier, Shift included, leaves the key alone: F14/F15 with modifiers are shortcuts.
  EXPECT_EQ(decide(true, true, false, shift), Decision::passThrough());
  EXPECT_EQ(decide(true, true, false, optionShift), Decision::passThrough());
  context.brightness = BrightnessAccess::readOnly;
  EXPECT_EQ(decide(true, true, false),
            Decision::observe(Action::showBrightnessAfterSystemChange()));
  EXPECT_EQ(decide(true, false, false), Decision::passThrough());
  context.brightness = BrightnessAccess::unavailable;
  EXPECT_EQ(decide(true, true, false), Decision::passThrough());
  context = everythingControllable();
  context.brightnessHUDEnabled = false;
  EXPECT_EQ(decide(true, true, false), Decision::passThrough());
}

}  // namespace
}  // namespace tindra
