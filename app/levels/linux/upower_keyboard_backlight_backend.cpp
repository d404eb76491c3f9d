#include "levels/linux/upower_keyboard_backlight_backend.h"

#include <algorithm>
#include <cmath>

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"
#include "hud/keyboard_backlight_policy.h"

namespace tindra {

namespace {

const QString path = QStringLiteral("/org/freedesktop/UPower/KbdBacklight");
const QString interface = QStringLiteral("org.freedesktop.UPower.KbdBacklight");
const QString device = QStringLiteral("kbd_backlight");

QDBusMessage lightCall(const QString& method) {
  return QDBusMessage::createMethodCall(dbus::upowerService, path, interface, method);
}

}  // namespace

UPowerKeyboardBacklightBackend::UPowerKeyboardBacklightBackend(QDBusConnection bus, QObject* parent)
    : BacklightBackend(parent),
      upower_(std::move(bus), dbus::upowerService, {}, DBusServiceFollower::Activation::start) {
  connect(&upower_, &DBusServiceFollower::appeared, this,
          &UPowerKeyboardBacklightBackend::readMaximum);
  connect(&upower_, &DBusServiceFollower::missing, this, [this](const QDBusError& error) {
    unavailable(noBacklight(Sentence::verbatim(error.name())));
  });
  connect(&upower_, &DBusServiceFollower::vanished, this, [this] {
    unavailable(Sentence(
        QT_TR_NOOP("UPower went away: the keyboard light keys stay with the desktop"), tr));
  });
  connect(&upower_, &DBusServiceFollower::signalReceived, this, [this](const QDBusMessage& news) {
    if (const auto value = dbus::argument<int>(news)) onBrightnessChanged(*value);
  });
}

void UPowerKeyboardBacklightBackend::start() {
  upower_.followSignal(path, interface, QStringLiteral("BrightnessChanged"));
  upower_.start();
}

Sentence UPowerKeyboardBacklightBackend::noBacklight(const Sentence& why) {
  return Sentence(QT_TR_NOOP("UPower reports no keyboard backlight (%1)"), tr).arg(why);
}

void UPowerKeyboardBacklightBackend::unavailable(const Sentence& why) {
  maximum_ = 0;
  forgetReading();
  setAccess(BrightnessAccess::unavailable, DiagnosticsLog::Outcome::degraded, why);
}

void UPowerKeyboardBacklightBackend::readMaximum() {
  upower_.call(lightCall(QStringLiteral("GetMaxBrightness")), [this](const QDBusMessage& answer) {
    maximum_ = dbus::argument<int>(answer).value_or(0);
    if (maximum_ <= 0) {
      unavailable(noBacklight(answer.type() == QDBusMessage::ErrorMessage
                                  ? Sentence::verbatim(answer.errorName())
                                  : Sentence(QT_TR_NOOP("no levels"), tr)));
      return;
    }
    readLevel([this] {
      setAccess(BrightnessAccess::readWrite, DiagnosticsLog::Outcome::ok,
                Sentence(QT_TR_NOOP("keyboard backlight through UPower, %1 levels"), tr)
                    .arg(maximum_ + 1));
    });
  });
}

void UPowerKeyboardBacklightBackend::readLevel(std::function<void()> then) {
  upower_.call(lightCall(QStringLiteral("GetBrightness")), [this, then = std::move(then)](
                                                               const QDBusMessage& answer) {
    const auto value = dbus::argument<int>(answer);
    if (!value) {
      reportUnreadable(Sentence(QT_TR_NOOP("the keyboard backlight level cannot be read (%1)"), tr)
                           .arg(Sentence::verbatim(answer.type() == QDBusMessage::ErrorMessage
                                                       ? answer.errorName()
                                                       : QStringLiteral("no level"))));
      return;
    }
    onBrightnessChanged(*value);
    if (then && reading()) then();
  });
}

void UPowerKeyboardBacklightBackend::readAgain() {
  readMaximum();
}

void UPowerKeyboardBacklightBackend::onBrightnessChanged(int value) {
  if (maximum_ <= 0) return;
  const double ratio = static_cast<double>(value) / maximum_;
  // The policy judges the reading; the level keeps double precision.
  if (!KeyboardBacklightPolicy::level(static_cast<float>(ratio)) || ratio < 0) {
    reportUnreadable(
        Sentence(QT_TR_NOOP("the keyboard backlight level cannot be read (%1 of %2)"), tr)
            .arg(value)
            .arg(maximum_));
    return;
  }
  publish(BacklightReading{device, std::min(ratio, 1.0), false});
}

void UPowerKeyboardBacklightBackend::setLevel(double level) {
  if (access() != BrightnessAccess::readWrite) return;
  QDBusMessage message = lightCall(QStringLiteral("SetBrightness"));
  message << static_cast<int>(std::lround(std::clamp(level, 0.0, 1.0) * maximum_));
  upower_.call(message, [this, level](const QDBusMessage&) {
    // Whatever UPower answered, what counts is where the light is now.
    readLevel([this, level] { emit writeFinished(level, reading() ? reading()->level : 0); });
  });
}

}  // namespace tindra
