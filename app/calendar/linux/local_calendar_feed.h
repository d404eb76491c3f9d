// LocalCalendarFeed: a calendar kept on this machine: one iCalendar file, or a folder of them
// (one event per file, as calendar synchronisers keep them). Followed through the file system's
// change notices, never by polling; a burst of changes (an editor saving through a temporary
// file) is read once it settles.
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include "calendar/linux/calendar_feed.h"

namespace tindra {

class LocalCalendarFeed final : public CalendarFeed {
  Q_OBJECT

 public:
  // Files of a folder beyond this many are not read.
  static constexpr int maxFolderFiles = 20000;

  LocalCalendarFeed(CalendarSource source, ICalendarReadOptions options, QObject* parent = nullptr);

  void start() override;

 protected:
  // Read from the disk again rather than kept: it is at hand there, and perhaps newer.
  bool holdsDocuments() const override { return true; }
  Gather documentsAgain() override;

 private:
  void read();
  void watch();

  QFileSystemWatcher watcher_;
  QTimer settle_;
};

}  // namespace tindra
