#include "base/watched_file.h"

#include <QDir>
#include <QFileInfo>

namespace tindra {

namespace {

// A writer's rename and the folder's change arrive as several notifications; one change after
// they settle is enough and still well inside a second.
constexpr int settleMilliseconds = 50;

}  // namespace

WatchedFile::WatchedFile(const QString& path, QObject* parent)
    : QObject(parent), path_(QFileInfo(path).absoluteFilePath()) {
  settle_.setSingleShot(true);
  settle_.setInterval(settleMilliseconds);
  connect(&settle_, &QTimer::timeout, this, &WatchedFile::settled);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, &settle_, qOverload<>(&QTimer::start));
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, &settle_, qOverload<>(&QTimer::start));
  watch();
}

void WatchedFile::watch() {
  const QFileInfo file(path_);
  QDir().mkpath(file.absolutePath());
  if (!watcher_.directories().contains(file.absolutePath())) {
    watcher_.addPath(file.absolutePath());
  }
  if (file.exists() && !watcher_.files().contains(path_)) watcher_.addPath(path_);
}

void WatchedFile::settled() {
  watch();
  emit changed();
}

}  // namespace tindra
