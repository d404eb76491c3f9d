#include "base/settings_file_watcher.h"

#include <QDir>
#include <QFileInfo>

#include "settings/settings_store.h"

namespace tindra {

namespace {

// A writer's rename and the folder's change arrive as several notifications; one reload after
// they settle is enough and still well inside a second.
constexpr int settleMilliseconds = 50;

}  // namespace

SettingsFileWatcher::SettingsFileWatcher(SettingsStore& store, QObject* parent)
    : QObject(parent), store_(store) {
  settle_.setSingleShot(true);
  settle_.setInterval(settleMilliseconds);
  connect(&settle_, &QTimer::timeout, this, &SettingsFileWatcher::reload);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, &settle_, qOverload<>(&QTimer::start));
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, &settle_, qOverload<>(&QTimer::start));
  watch();
}

void SettingsFileWatcher::watch() {
  const QFileInfo file(QString::fromStdString(store_.file().string()));
  QDir().mkpath(file.absolutePath());
  if (!watcher_.directories().contains(file.absolutePath())) {
    watcher_.addPath(file.absolutePath());
  }
  if (file.exists() && !watcher_.files().contains(file.absoluteFilePath())) {
    watcher_.addPath(file.absoluteFilePath());
  }
}

void SettingsFileWatcher::reload() {
  store_.reload();
  watch();
  emit reloaded();
}

}  // namespace tindra
