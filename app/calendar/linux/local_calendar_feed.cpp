#include "calendar/linux/local_calendar_feed.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tindra {

namespace {

// At most one byte past the reader's limit, so an enormous file is refused without being read.
std::optional<std::string> contentsOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.read(static_cast<qint64>(ICalendarReader::maxDocumentBytes) + 1);
  return bytes.toStdString();
}

// The documents of a file, or of the *.ics files of a folder, on the reader; none when a single
// file cannot be read.
std::optional<std::vector<std::string>> documentsAt(const QString& path, bool isFolder) {
  QStringList files{path};
  if (isFolder) {
    QDir folder(path);
    files = folder.entryList({QStringLiteral("*.ics")}, QDir::Files | QDir::Readable, QDir::Name);
    if (files.size() > LocalCalendarFeed::maxFolderFiles) {
      files.resize(LocalCalendarFeed::maxFolderFiles);
    }
    for (QString& file : files) file = folder.filePath(file);
  }
  std::vector<std::string> documents;
  for (const QString& file : files) {
    if (std::optional<std::string> text = contentsOf(file)) documents.push_back(std::move(*text));
  }
  if (!isFolder && documents.empty()) return std::nullopt;
  return documents;
}

}  // namespace

LocalCalendarFeed::LocalCalendarFeed(CalendarSource source, ICalendarReadOptions options,
                                     QObject* parent)
    : CalendarFeed(std::move(source), std::move(options), parent) {
  settle_.setSingleShot(true);
  settle_.setInterval(200);
  connect(&settle_, &QTimer::timeout, this, &LocalCalendarFeed::read);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, &settle_, qOverload<>(&QTimer::start));
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, &settle_, qOverload<>(&QTimer::start));
}

void LocalCalendarFeed::start() {
  read();
}

// The file itself, and its folder: a save that renames a new file over the old one replaces
// what the watch was on, and only the folder sees the new one arrive.
void LocalCalendarFeed::watch() {
  const QFileInfo info(location());
  QStringList paths{info.isDir() ? info.absoluteFilePath() : info.absolutePath()};
  if (info.isFile()) paths.append(info.absoluteFilePath());
  for (const QString& path : paths) {
    if (!watcher_.files().contains(path) && !watcher_.directories().contains(path)) {
      watcher_.addPath(path);
    }
  }
}

void LocalCalendarFeed::read() {
  watch();
  const QFileInfo info(location());
  if (!info.exists()) {
    setProblem(DiagnosticsLog::Outcome::degraded,
               Sentence(QT_TR_NOOP("%1 is not there"), tr).arg(location()));
    return;
  }
  accept(documentsAgain(), [this](Outcome outcome) {
    if (outcome != Outcome::unavailable) return;
    setProblem(DiagnosticsLog::Outcome::degraded,
               Sentence(QT_TR_NOOP("%1 cannot be read"), tr).arg(location()));
  });
}

CalendarFeed::Gather LocalCalendarFeed::documentsAgain() {
  const QFileInfo info(location());
  return [path = info.absoluteFilePath(), isFolder = info.isDir()] {
    return documentsAt(path, isFolder);
  };
}

}  // namespace tindra
