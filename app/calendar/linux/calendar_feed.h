// CalendarFeed: one calendar the iCalendar backend reads: its documents (one file, the files of
// a folder, or a fetched feed), read into the events of the current window, and how the last
// reading went. Documents are got and read on the one thread every calendar is read on, so a
// large calendar never holds up the notch; a newer reading replaces one not yet done. A new
// reading in which no document can be read keeps the last good one, so a failed fetch or a bad
// save never empties the calendar. A calendar whose service gives it a colour keeps that colour.
// Used from the main thread only.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/serial_worker.h"
#include "calendar/calendar_backend.h"
#include "icalendar/icalendar_reader.h"

namespace tindra {

class CalendarFeed : public QObject {
  Q_OBJECT

 public:
  CalendarFeed(CalendarSource source, ICalendarReadOptions options, QObject* parent = nullptr);

  // Reads what the feed already has, then follows it.
  virtual void start() = 0;
  // The thread every calendar is read on, while anyone holds it: libical keeps global state, so
  // two documents are never read at once.
  static std::shared_ptr<SerialWorker> reader();
  const CalendarContents& contents() const { return contents_; }
  // Reads the documents again for a new window or new owner addresses.
  void setReadOptions(ICalendarReadOptions options);
  const ICalendarReadOptions& readOptions() const { return options_; }
  // The seconds the publisher asks to wait between fetches, when a document says.
  std::optional<double> refreshInterval() const { return refreshInterval_; }

 signals:
  void changed();

 protected:
  // Gets a reading's documents, on the reader; none when there are none to be had.
  using Gather = std::function<std::optional<std::vector<std::string>>()>;
  enum class Outcome {
    unavailable,  // no documents to be had
    unread,       // none of them could be read; the previous ones stay
    taken,        // they are the feed's now
  };
  // Gets the documents with `gather` and reads them on the reader, then makes them the feed's
  // here: documents that cannot be read are left out and named in the state, and whatever kept
  // the feed from its documents is over. `done` hears how it went, unless a newer reading came
  // first.
  void accept(Gather gather, std::function<void(Outcome)> done = {});
  // The window changed (after the documents were asked to be read again for it): a feed that
  // asks its service for the window's events asks again.
  virtual void windowChanged() {}
  // A feed that holds its documents' text itself (Evolution's components) or can get it again
  // at no cost (a file on this machine) gives it for new read options, and the text of the last
  // reading is not kept. Any other (a fetched calendar) has the last reading's text read again.
  virtual bool holdsDocuments() const { return false; }
  virtual Gather documentsAgain() { return {}; }
  // A problem in getting the documents at all (a failed fetch); the last good ones stay shown.
  void setProblem(DiagnosticsLog::Outcome outcome, const Sentence& text);
  const QString& location() const { return contents_.source.location; }

 private:
  struct Reading {
    std::vector<ICalendarDocument> documents;
    std::shared_ptr<const std::vector<std::string>> texts;  // those that read
    QString firstError;
    std::size_t count = 0;
    std::size_t failed = 0;
  };
  // A reading asked for: fresh documents to accept, or the feed's own read again (`again`).
  struct Request {
    Gather gather;
    std::function<void(Outcome)> done;
    bool again = false;
  };
  static std::optional<Reading> read(const Gather& gather, const ICalendarReadOptions& options);
  void post(Request request);
  void finish(const Request& request, std::optional<Reading> reading);
  void take(Reading reading);
  void publish();

  std::shared_ptr<SerialWorker> reader_;
  QString defaultName_;
  std::optional<CalendarEventInfo::Color> ownColor_;  // the service's, over the palette's
  ICalendarReadOptions options_;
  // The text of the last reading, unless the feed holds it itself.
  std::shared_ptr<const std::vector<std::string>> documents_;
  std::optional<Request> pending_;  // the newest reading asked for, until it is done
  std::uint64_t posted_ = 0;        // readings asked for so far
  CalendarContents contents_;
  std::optional<double> refreshInterval_;
  Sentence readProblem_;  // documents left out of the last reading
  ServiceCheck problem_;  // in getting the documents; ok when there is none
};

}  // namespace tindra
