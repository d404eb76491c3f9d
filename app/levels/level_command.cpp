#include "levels/level_command.h"

#include <array>
#include <utility>

namespace tindra {

namespace {

using Key = SystemDefinedKeyEvent::Key;

struct Named {
  const char* level;      // as typed: "volume"
  const char* direction;  // "up"
  const char* wire;       // between the command and Tindra: "volume-up"
  Key key;
};

constexpr std::array named{
    Named{"volume", "up", "volume-up", Key::soundUp},
    Named{"volume", "down", "volume-down", Key::soundDown},
    Named{"volume", "mute", "mute", Key::mute},
    Named{"brightness", "up", "brightness-up", Key::brightnessUp},
    Named{"brightness", "down", "brightness-down", Key::brightnessDown},
    Named{"keyboard", "up", "keyboard-up", Key::illuminationUp},
    Named{"keyboard", "down", "keyboard-down", Key::illuminationDown},
};

}  // namespace

std::expected<LevelCommand, QString> LevelCommand::parse(const QStringList& arguments) {
  QStringList words = arguments;
  const bool fine = words.removeAll(QStringLiteral("--fine")) > 0;
  if (words.size() == 2) {
    for (const Named& entry : named) {
      if (words[0] == QLatin1String(entry.level) && words[1] == QLatin1String(entry.direction) &&
          !(fine && entry.key == Key::mute)) {
        return LevelCommand{entry.key, fine};
      }
    }
  }
  return std::unexpected(usage());
}

QString LevelCommand::usage() {
  return QStringLiteral(
      "usage: tindra level volume up|down|mute [--fine]\n"
      "       tindra level brightness up|down [--fine]\n"
      "       tindra level keyboard up|down [--fine]\n"
      "Steps a level in the running Tindra as its key would; --fine takes a quarter step.\n");
}

QString LevelCommand::keyName() const {
  for (const Named& entry : named) {
    if (entry.key == key) return QLatin1String(entry.wire);
  }
  return {};
}

std::optional<LevelCommand> LevelCommand::fromKeyName(const QString& name, bool fine) {
  for (const Named& entry : named) {
    if (name == QLatin1String(entry.wire)) return LevelCommand{entry.key, fine};
  }
  return std::nullopt;
}

MediaKeyPress LevelCommand::press(std::chrono::steady_clock::time_point at) const {
  return {.key = key,
          .isKeyDown = true,
          .isRepeat = false,
          .modifiers = fine ? KeyModifiers::shift() | KeyModifiers::option() : KeyModifiers(),
          .receivedAt = at};
}

}  // namespace tindra
