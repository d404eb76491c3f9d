#include "notch/activity_presentation.h"

#include <QCoreApplication>

namespace tindra {

ActivityPresentation ActivityPresentation::of(ActivityKind kind) {
  const auto tr = [](const char* text) { return QCoreApplication::translate("Notch", text); };
  switch (kind) {
    case ActivityKind::idle:
      return {QString(), QColor(0x8e, 0x8e, 0x93)};
    case ActivityKind::nowPlaying:
      return {tr("Now Playing"), QColor(0xff, 0x37, 0x5f)};
    case ActivityKind::upcomingEvent:
      return {tr("Calendar"), QColor(0xff, 0x45, 0x3a)};
    case ActivityKind::focus:
      return {tr("Focus"), QColor(0x5e, 0x5c, 0xe6)};
    case ActivityKind::airDrop:
      return {tr("AirDrop"), QColor(0x0a, 0x84, 0xff)};
    case ActivityKind::message:
      return {tr("Message"), QColor(0x30, 0xd1, 0x58)};
    case ActivityKind::accessory:
      return {tr("Accessory"), QColor(0x64, 0xd2, 0xff)};
    case ActivityKind::batteryAlert:
      return {tr("Battery"), QColor(0x30, 0xd1, 0x58)};
    case ActivityKind::hud:
      return {tr("Level"), QColor(0xff, 0xff, 0xff)};
    case ActivityKind::incomingCall:
      return {tr("Call"), QColor(0x30, 0xd1, 0x58)};
  }
  return {};
}

}  // namespace tindra
