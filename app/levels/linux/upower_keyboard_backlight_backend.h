// UPowerKeyboardBacklightBackend: the keyboard's backlight through UPower's KbdBacklight object
// on the system bus: GetMaxBrightness and GetBrightness once UPower is there, then its
// BrightnessChanged signal (sent for Tindra's writes, the firmware's hotkeys and everyone
// else's). Writes are read back so that the provider can tell whether the hardware moved.
#pragma once

#include <QDBusConnection>

#include "base/dbus/dbus_service_follower.h"
#include "levels/backlight_backend.h"

namespace tindra {

class UPowerKeyboardBacklightBackend final : public BacklightBackend {
  Q_OBJECT

 public:
  explicit UPowerKeyboardBacklightBackend(QDBusConnection bus, QObject* parent = nullptr);

  void start() override;
  void setLevel(double level) override;
  void readAgain() override;

 private:
  void readMaximum();
  void readLevel(std::function<void()> then = {});
  void onBrightnessChanged(int value);
  static Sentence noBacklight(const Sentence& why);
  void unavailable(const Sentence& why);

  DBusServiceFollower upower_;
  int maximum_ = 0;
};

}  // namespace tindra
