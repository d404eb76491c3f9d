// FocusCommand: `tindra focus on [--name NAME] [--symbol SYMBOL]` and `tindra focus off`, for a
// desktop shortcut or a script. It writes the Focus filter state to the settings store, where a
// running Tindra sees it within a second; it needs no display and starts no notch.
#pragma once

#include <QStringList>
#include <QTextStream>

namespace tindra {

class SettingsStore;

struct FocusCommand {
  // `arguments` are those after "focus". Returns the exit status: 0 done, 2 wrong use (with the
  // usage on `err`), 1 the settings could not be saved.
  static int run(const QStringList& arguments, SettingsStore& settings, double now,
                 QTextStream& out, QTextStream& err);
  static QString usage();
};

}  // namespace tindra
