#include "views/activity_presentation.h"

#include <QCoreApplication>

namespace tindra {

ActivityPresentation ActivityPresentation::of(ActivityKind kind) {
  const auto label = [](const char* text) { return QCoreApplication::translate("Notch", text); };
  // The texts are marked in the context they are looked up in.
  switch (kind) {
    case ActivityKind::idle:
      return {QString(), QColor(0x8e, 0x8e, 0x93)};
    case ActivityKind::nowPlaying:
      return {label(QT_TRANSLATE_NOOP("Notch", "Now Playing")), QColor(0xff, 0x37, 0x5f)};
    case ActivityKind::upcomingEvent:
      return {label(QT_TRANSLATE_NOOP("Notch", "Calendar")), QColor(0xff, 0x45, 0x3a)};
    case ActivityKind::focus:
      return {label(QT_TRANSLATE_NOOP("Notch", "Focus")), QColor(0x5e, 0x5c, 0xe6)};
    case ActivityKind::airDrop:
      return {label(QT_TRANSLATE_NOOP("Notch", "AirDrop")), QColor(0x0a, 0x84, 0xff)};
    case ActivityKind::message:
      return {label(QT_TRANSLATE_NOOP("Notch", "Message")), QColor(0x30, 0xd1, 0x58)};
    case ActivityKind::accessory:
      return {label(QT_TRANSLATE_NOOP("Notch", "Accessory")), QColor(0x64, 0xd2, 0xff)};
    case ActivityKind::batteryAlert:
      return {label(QT_TRANSLATE_NOOP("Notch", "Battery")), QColor(0x30, 0xd1, 0x58)};
    case ActivityKind::hud:
      return {label(QT_TRANSLATE_NOOP("Notch", "Level")), QColor(0xff, 0xff, 0xff)};
    case ActivityKind::incomingCall:
      return {label(QT_TRANSLATE_NOOP("Notch", "Call")), QColor(0x30, 0xd1, 0x58)};
  }
  return {};
}

}  // namespace tindra
