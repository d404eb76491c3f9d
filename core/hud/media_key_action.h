// MediaKeyAction: what the app carries out for a routed key: change the volume, the display
// brightness or the keyboard backlight itself, or show the level after the system changed it.
#pragma once

#include <variant>

#include "hud/volume_action.h"

namespace tindra {

class MediaKeyAction {
 public:
  struct Volume {
    VolumeAction action;
    friend bool operator==(const Volume&, const Volume&) = default;
  };
  struct Brightness {
    bool up;
    bool fine;
    friend bool operator==(const Brightness&, const Brightness&) = default;
  };
  struct KeyboardBacklight {
    bool up;
    bool fine;
    friend bool operator==(const KeyboardBacklight&, const KeyboardBacklight&) = default;
  };
  struct ShowBrightnessAfterSystemChange {
    friend bool operator==(const ShowBrightnessAfterSystemChange&,
                           const ShowBrightnessAfterSystemChange&) = default;
  };
  struct ShowKeyboardBacklightAfterSystemChange {
    friend bool operator==(const ShowKeyboardBacklightAfterSystemChange&,
                           const ShowKeyboardBacklightAfterSystemChange&) = default;
  };
  using Value = std::variant<Volume, Brightness, KeyboardBacklight, ShowBrightnessAfterSystemChange,
                             ShowKeyboardBacklightAfterSystemChange>;

  static MediaKeyAction volume(VolumeAction action) { return MediaKeyAction(Volume{action}); }
  static MediaKeyAction brightness(bool up, bool fine) {
    return MediaKeyAction(Brightness{up, fine});
  }
  static MediaKeyAction keyboardBacklight(bool up, bool fine) {
    return MediaKeyAction(KeyboardBacklight{up, fine});
  }
  static MediaKeyAction showBrightnessAfterSystemChange() {
    return MediaKeyAction(ShowBrightnessAfterSystemChange{});
  }
  static MediaKeyAction showKeyboardBacklightAfterSystemChange() {
    return MediaKeyAction(ShowKeyboardBacklightAfterSystemChange{});
  }

  // For std::visit.
  const Value& value() const { return value_; }

  friend bool operator==(const MediaKeyAction&, const MediaKeyAction&) = default;

 private:
  explicit MediaKeyAction(Value value) : value_(value) {}

  Value value_;
};

}  // namespace tindra
