// WatchedFile: tells when a file another program writes may have changed: written in place,
// replaced by an atomic save, made or removed. Atomic saves replace the file, which drops it from
// a plain file watch, so its folder is watched too (made if missing, so that the first save is
// seen) and the file is watched again after every change. The burst of notifications one save
// makes comes out as one changed().
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace tindra {

class WatchedFile : public QObject {
  Q_OBJECT

 public:
  explicit WatchedFile(const QString& path, QObject* parent = nullptr);

  const QString& path() const { return path_; }

 signals:
  void changed();

 private:
  void watch();
  void settled();

  QString path_;
  QFileSystemWatcher watcher_;
  QTimer settle_;
};

}  // namespace tindra
