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

std::optional<int> intAnswer(const QDBusMessage& answer) {
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().size() != 1 ||
      answer.arguments().front().typeId() != QMetaType::Int) {
    return std::nullopt;
  }
  return answer.arguments().front().toInt();
}

}  // namespace

UPowerKeyboardBacklightBackend::UPowerKeyboardBacklightBackend(QDBusConnection bus, QObject* parent)
    : BacklightBackend(parent),
      bus_(std::move(bus)),
      watcher_(dbus::upowerService, bus_,
               QDBusServiceWatcher::WatchForRegistration |
                   QDBusServiceWatcher::WatchForUnregistration) {}

void UPowerKeyboardBacklightBackend::start() {
  bus_.connect(dbus::upowerService, path, interface, QStringLiteral("BrightnessChanged"), this,
               SLOT(onBrightnessChanged(int)));
  connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this,
          &UPowerKeyboardBacklightBackend::readMaximum);
  connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    maximum_ = 0;
    forgetReading();
    setAccess(
        BrightnessAccess::unavailable, DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("UPower went away: the keyboard light keys stay with the desktop"),
                 tr));
  });
  readMaximum();
}

QDBusMessage UPowerKeyboardBacklightBackend::call(const QString& method) const {
  return QDBusMessage::createMethodCall(dbus::upowerService, path, interface, method);
}

void UPowerKeyboardBacklightBackend::readMaximum() {
  whenAnswered(bus_.asyncCall(call(QStringLiteral("GetMaxBrightness"))), this,
               [this](const QDBusMessage& answer) {
                 maximum_ = intAnswer(answer).value_or(0);
                 if (maximum_ <= 0) {
                   forgetReading();
                   setAccess(BrightnessAccess::unavailable, DiagnosticsLog::Outcome::degraded,
                             Sentence(QT_TR_NOOP("UPower reports no keyboard backlight (%1)"), tr)
                                 .arg(answer.type() == QDBusMessage::ErrorMessage
                                          ? Sentence::verbatim(answer.errorName())
                                          : Sentence(QT_TR_NOOP("no levels"), tr)));
                   return;
                 }
                 readLevel([this] {
                   setAccess(
                       BrightnessAccess::readWrite, DiagnosticsLog::Outcome::ok,
                       Sentence(QT_TR_NOOP("keyboard backlight through UPower, %1 levels"), tr)
                           .arg(maximum_ + 1));
                 });
               });
}

void UPowerKeyboardBacklightBackend::readLevel(std::function<void()> then) {
  whenAnswered(bus_.asyncCall(call(QStringLiteral("GetBrightness"))), this,
               [this, then = std::move(then)](const QDBusMessage& answer) {
                 if (const std::optional<int> value = intAnswer(answer))
                   onBrightnessChanged(*value);
                 if (then) then();
               });
}

void UPowerKeyboardBacklightBackend::onBrightnessChanged(int value) {
  if (maximum_ <= 0) return;
  const double ratio = static_cast<double>(value) / maximum_;
  // The policy judges the reading; the level keeps double precision.
  if (!KeyboardBacklightPolicy::level(static_cast<float>(ratio)) || ratio < 0) {
    forgetReading();
    setAccess(BrightnessAccess::unavailable, DiagnosticsLog::Outcome::degraded,
              Sentence(QT_TR_NOOP("the keyboard backlight level cannot be read (%1 of %2)"), tr)
                  .arg(value)
                  .arg(maximum_));
    return;
  }
  publish(BacklightReading{device, std::min(ratio, 1.0), false});
}

void UPowerKeyboardBacklightBackend::setLevel(double level) {
  if (access() != BrightnessAccess::readWrite) return;
  QDBusMessage message = call(QStringLiteral("SetBrightness"));
  message << static_cast<int>(std::lround(std::clamp(level, 0.0, 1.0) * maximum_));
  whenAnswered(bus_.asyncCall(message), this, [this, level](const QDBusMessage&) {
    // Whatever UPower answered, what counts is where the light is now.
    readLevel([this, level] { emit writeFinished(level, reading() ? reading()->level : 0); });
  });
}

}  // namespace tindra
