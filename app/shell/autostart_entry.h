// AutostartEntry: Tindra starting at login, as the XDG autostart entry
// "$XDG_CONFIG_HOME/autostart/com.brenvik.Tindra.desktop" that every desktop of the freedesktop
// family reads. The entry is the state: it is written (through DurableFile) when turned on and
// removed when turned off; an entry that says Hidden=true counts as off.
#pragma once

#include "base/sentence.h"

#include <QString>
#include <filesystem>

namespace tindra {

class AutostartEntry {
 public:
  static constexpr const char* fileName = "com.brenvik.Tindra.desktop";

  // `configFolder` is $XDG_CONFIG_HOME (or ~/.config); `program` the path to start.
  AutostartEntry(std::filesystem::path configFolder, QString program);
  // For this user and this program.
  static AutostartEntry forThisProgram();

  std::filesystem::path file() const { return configFolder_ / "autostart" / fileName; }
  bool enabled() const;
  // An empty sentence when done, else what went wrong, for a person.
  Sentence setEnabled(bool enabled) const;
  // The entry's text.
  QString text() const;

 private:
  std::filesystem::path configFolder_;
  QString program_;
};

}  // namespace tindra
