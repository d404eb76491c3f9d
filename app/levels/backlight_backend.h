// BacklightBackend: a light whose level Tindra follows and may set: the display's backlight or
// the keyboard's. A backend reports each change when it happens (never by polling), says what
// the keys may do with it (set it, or only watch the system set it) and whether its service
// answers.
#pragma once

#include <QObject>
#include <optional>

#include "base/assign_if_changed.h"
#include "base/service_check.h"
#include "hud/brightness_access.h"

namespace tindra {

struct BacklightReading {
  QString device;         // "intel_backlight", "kbd_backlight"
  double level = 0;       // 0 ... 1
  bool external = false;  // an external display's brightness

  friend bool operator==(const BacklightReading&, const BacklightReading&) = default;
};

class BacklightBackend : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual void start() = 0;
  // Asks for `level`; writeFinished reports what the light read afterwards.
  virtual void setLevel(double level) = 0;

  // None while there is no such light or no service to ask.
  const std::optional<BacklightReading>& reading() const { return reading_; }
  // readWrite when setLevel works, readOnly when the level can only be watched.
  BrightnessAccess access() const { return access_; }
  const ServiceCheck& check() const { return check_; }

 signals:
  void readingChanged();
  // A change of access() or check().
  void checkChanged();
  // A write has been answered; `after` is the level read back once it was (for verifying
  // that the hardware really moved).
  void writeFinished(double requested, double after);

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
  void setAccess(BrightnessAccess access, DiagnosticsLog::Outcome outcome, const QString& text) {
    const bool accessChanged = assignIfChanged(access_, access);
    if (assignIfChanged(check_, ServiceCheck{outcome, text}) || accessChanged) emit checkChanged();
  }

 private:
  std::optional<BacklightReading> reading_;
  BrightnessAccess access_ = BrightnessAccess::unavailable;
  ServiceCheck check_;
};

}  // namespace tindra
