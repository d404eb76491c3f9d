// CalendarFeed: one calendar the iCalendar backend reads: its documents (one file, the files of
// a folder, or a fetched feed), read into the events of the current window, and how the last
// reading went. A new reading in which no document can be read keeps the last good one, so a
// failed fetch or a bad save never empties the calendar. Main thread only.
#pragma once

#include <QObject>
#include <string>
#include <vector>

#include "calendar/calendar_backend.h"
#include "icalendar/icalendar_reader.h"

namespace tindra {

class CalendarFeed : public QObject {
  Q_OBJECT

 public:
  CalendarFeed(CalendarSource source, ICalendarReadOptions options, QObject* parent = nullptr);

  // Reads what the feed already has, then follows it.
  virtual void start() = 0;
  const CalendarContents& contents() const { return contents_; }
  // Reads the documents again for a new window or new owner addresses.
  void setReadOptions(ICalendarReadOptions options);
  // The seconds the publisher asks to wait between fetches, when a document says.
  std::optional<double> refreshInterval() const { return refreshInterval_; }

 signals:
  void changed();

 protected:
  // Makes `documents` the feed's, each read now; documents that cannot be read are left out and
  // named in the state. When none of them reads, the previous documents stay and this is false.
  bool accept(std::vector<std::string> documents);
  // A problem in getting the documents at all (a failed fetch); the last good ones stay shown.
  void setProblem(DiagnosticsLog::Outcome outcome, const Sentence& text);
  // The problem is over; said with the next reading.
  void clearProblem() { problem_ = {}; }
  const QString& location() const { return contents_.source.location; }

 private:
  struct Reading {
    std::vector<ICalendarDocument> documents;
    std::vector<std::string> texts;  // those that read
    QString firstError;
    std::size_t failed = 0;
  };
  Reading read(std::vector<std::string> documents) const;
  void take(Reading reading);
  void publish();

  QString defaultName_;
  ICalendarReadOptions options_;
  std::vector<std::string> documents_;
  CalendarContents contents_;
  std::optional<double> refreshInterval_;
  Sentence readProblem_;  // documents left out of the last reading
  ServiceCheck problem_;  // in getting the documents; ok when there is none
};

}  // namespace tindra
