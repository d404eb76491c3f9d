// SettingsFileWatcher: notices when another process (or a person with an editor) changes the
// preferences file and has the store reload it, so observers hear of the change within a second.
// Atomic saves replace the file, which drops it from a plain file watch, so the folder is
// watched too and the file is watched again after every change.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

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
  void watch();
  void reload();

  SettingsStore& store_;
  QFileSystemWatcher watcher_;
  QTimer settle_;
};

}  // namespace tindra
