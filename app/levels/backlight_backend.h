// BacklightBackend: a light whose level Tindra follows and may set: the display's backlight or
// the keyboard's. A backend reports each change when it happens (never by polling), says what
// the keys may do with it (set it, or only watch the system set it) and whether its service
// answers.
#pragma once

#include <optional>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "hud/brightness_access.h"

namespace tindra {

struct BacklightReading {
  QString device;         // "intel_backlight", "kbd_backlight"
  double level = 0;       // 0 ... 1
  bool external = false;  // an external display's brightness

  friend bool operator==(const BacklightReading&, const BacklightReading&) = default;
};

class BacklightBackend : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  class Null;

  // This platform's backends of the display's backlight and of the keyboard's: the real ones, or
  // do-nothing ones where there can be no such light (made in the platform's folder).
  static std::unique_ptr<BacklightBackend> displayForPlatform(SharedBackends& shared);
  static std::unique_ptr<BacklightBackend> keyboardForPlatform(SharedBackends& shared);

  // Asks for `level`; writeFinished reports what the light read afterwards.
  virtual void setLevel(double level) = 0;
  // Reads the light again after its level could not be read.
  virtual void readAgain() {}

  // None while there is no such light or no service to ask.
  const std::optional<BacklightReading>& reading() const { return reading_; }
  // readWrite when setLevel works, readOnly when the level can only be watched.
  BrightnessAccess access() const { return access_; }

 signals:
  void readingChanged();
  // checkChanged also tells of a change of access().
  // A write has been answered; `after` is the level read back once it was (for verifying
  // that the hardware really moved).
  void writeFinished(double requested, double after);
  // The light's level could not be read (no answer, or a value out of range): the reading is
  // dropped, and the light cannot be used until it is read again.
  void levelUnreadable();

 protected:
  void publish(const BacklightReading& reading) {
    if (reading_ == reading) return;
    reading_ = reading;
    emit readingChanged();
  }
  void forgetReading() {
    if (!reading_) return;
    reading_.reset();
    emit readingChanged();
  }
  // Said before the reading goes, so that whoever listens knows why it went.
  void reportUnreadable(const Sentence& why) {
    emit levelUnreadable();
    forgetReading();
    setAccess(BrightnessAccess::unavailable, DiagnosticsLog::Outcome::degraded, why);
  }
  void setAccess(BrightnessAccess access, DiagnosticsLog::Outcome outcome, const Sentence& text) {
    if (assignIfChanged(access_, access) && check() == ServiceCheck{outcome, text}) {
      emit checkChanged();
      return;
    }
    setCheck(outcome, text);
  }

 private:
  std::optional<BacklightReading> reading_;
  BrightnessAccess access_ = BrightnessAccess::unavailable;
};

// Where there is no such light to follow: no reading, and nothing to set.
class BacklightBackend::Null final : public NullBackend<BacklightBackend> {
 public:
  using NullBackend::NullBackend;
  void setLevel(double) override {}
};

}  // namespace tindra
