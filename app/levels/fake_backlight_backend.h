// FakeBacklightBackend: an invented light for the demo and tests, only when TINDRA_FAKE names
// "hud". Writes take effect at once unless the test makes the light ignore them.
#pragma once

#include "levels/backlight_backend.h"

namespace tindra {

class FakeBacklightBackend final : public BacklightBackend {
  Q_OBJECT

 public:
  FakeBacklightBackend(QString device, double level, QObject* parent = nullptr)
      : BacklightBackend(parent), device_(std::move(device)), level_(level) {}

  void start() override { read(level_); }
  void setLevel(double level) override {
    if (!ignoresWrites) change(level);
    emit writeFinished(level, reading() ? reading()->level : 0);
  }

  // The light is read again where it was last.
  void readAgain() override {
    ++readAgainCount;
    read(reading() ? reading()->level : level_);
  }

  // What the system or another program does to the light.
  void change(double level) { publish(BacklightReading{device_, level, false}); }
  using BacklightBackend::reportUnreadable;
  using BacklightBackend::setAccess;

  int readAgainCount = 0;

  bool ignoresWrites = false;

 private:
  void read(double level) {
    setAccess(BrightnessAccess::readWrite, DiagnosticsLog::Outcome::degraded,
              Sentence(QT_TR_NOOP("invented readings (TINDRA_FAKE asks for them)"), tr));
    change(level);
  }

  QString device_;
  double level_;
};

}  // namespace tindra
