#include "levels/media_key_source.h"

#include "base/qt_text.h"

namespace tindra {

QString keyName(SystemDefinedKeyEvent::Key key) {
  using Key = SystemDefinedKeyEvent::Key;
  switch (key) {
    case Key::soundUp:
      return QStringLiteral("XF86AudioRaiseVolume");
    case Key::soundDown:
      return QStringLiteral("XF86AudioLowerVolume");
    case Key::mute:
      return QStringLiteral("XF86AudioMute");
    case Key::brightnessUp:
      return QStringLiteral("XF86MonBrightnessUp");
    case Key::brightnessDown:
      return QStringLiteral("XF86MonBrightnessDown");
    case Key::illuminationUp:
      return QStringLiteral("XF86KbdBrightnessUp");
    case Key::illuminationDown:
      return QStringLiteral("XF86KbdBrightnessDown");
    default:
      return toQString(name(key));
  }
}

}  // namespace tindra
