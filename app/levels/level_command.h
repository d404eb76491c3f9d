// LevelCommand: `tindra level volume up|down|mute`, `tindra level brightness up|down` and
// `tindra level keyboard up|down`, with `--fine` for quarter steps: the level keys as commands a
// desktop binds where no program may take the keys themselves (Wayland). A running Tindra steps
// the level as it would for the key, through the same path: the write, the sound, the indicator.
#pragma once

#include <QString>
#include <QStringList>
#include <chrono>
#include <expected>
#include <optional>

#include "levels/media_key_source.h"

namespace tindra {

struct LevelCommand {
  SystemDefinedKeyEvent::Key key = SystemDefinedKeyEvent::Key::soundUp;
  bool fine = false;

  // From the arguments after "level"; the usage when they make no command.
  static std::expected<LevelCommand, QString> parse(const QStringList& arguments);
  static QString usage();

  // The key's name between the command and the running Tindra ("volume-up", "mute", ...).
  QString keyName() const;
  static std::optional<LevelCommand> fromKeyName(const QString& name, bool fine);

  // The key press it stands for: a key down, with Shift and Option for a fine step.
  MediaKeyPress press(std::chrono::steady_clock::time_point at) const;
};

}  // namespace tindra
