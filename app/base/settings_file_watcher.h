// SettingsFileWatcher: notices when another process (or a person with an editor) changes the
// preferences file and has the store reload it, so observers hear of the change within a second.
#pragma once

#include <QObject>

#include "base/watched_file.h"

namespace tindra {

class SettingsStore;

class SettingsFileWatcher : public QObject {
  Q_OBJECT

 public:
  explicit SettingsFileWatcher(SettingsStore& store, QObject* parent = nullptr);

 signals:
  // After each reload the watcher triggered.
  void reloaded();

 private:
  void reload();

  SettingsStore& store_;
  WatchedFile file_;
};

}  // namespace tindra
