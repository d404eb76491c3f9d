#include "calendar/linux/calendar_feed.h"

#include <malloc.h>

#include "base/qt_text.h"

namespace tindra {

CalendarFeed::CalendarFeed(CalendarSource source, ICalendarReadOptions options, QObject* parent)
    : QObject(parent), defaultName_(source.name), options_(std::move(options)) {
  contents_.source = std::move(source);
  options_.idPrefix = contents_.source.id.toStdString();
  contents_.source.state = {DiagnosticsLog::Outcome::degraded,
                            Sentence(QT_TR_NOOP("not read yet"), tr)};
}

void CalendarFeed::setReadOptions(ICalendarReadOptions options) {
  options.idPrefix = options_.idPrefix;
  options_ = std::move(options);
  take(read(documents_));
  publish();
}

CalendarFeed::Reading CalendarFeed::read(std::vector<std::string> documents) const {
  Reading reading;
  for (std::string& text : documents) {
    auto document = ICalendarReader::read(text, options_);
    if (!document) {
      if (reading.failed++ == 0) reading.firstError = toQString(describe(document.error()));
      continue;
    }
    reading.documents.push_back(std::move(*document));
    reading.texts.push_back(std::move(text));
  }
  // libical builds a tree many times the document's size and frees it in small pieces, which
  // the allocator would otherwise keep for good.
  malloc_trim(0);
  return reading;
}

bool CalendarFeed::accept(std::vector<std::string> documents) {
  const std::size_t count = documents.size();
  Reading reading = read(std::move(documents));
  if (count > 0 && reading.failed == count) {
    readProblem_ = Sentence(QT_TR_NOOP("%1; the last good copy is kept"), tr)
                       .arg(Sentence::verbatim(reading.firstError));
    publish();
    return false;
  }
  readProblem_ = reading.failed == 0 ? Sentence()
                                     : Sentence(QT_TR_NOOP("%n document(s) could not be read (%1)"),
                                                tr, static_cast<int>(reading.failed))
                                           .arg(reading.firstError);
  take(std::move(reading));
  publish();
  return true;
}

void CalendarFeed::take(Reading reading) {
  documents_ = std::move(reading.texts);
  contents_.events.clear();
  contents_.reminders.clear();
  contents_.source.name = defaultName_;
  contents_.source.color = options_.color;
  refreshInterval_.reset();
  for (ICalendarDocument& document : reading.documents) {
    if (document.refreshInterval) refreshInterval_ = document.refreshInterval;
    if (!document.name.empty()) contents_.source.name = toQString(document.name);
    if (document.color) contents_.source.color = document.color;
    std::move(document.events.begin(), document.events.end(), std::back_inserter(contents_.events));
    std::move(document.reminders.begin(), document.reminders.end(),
              std::back_inserter(contents_.reminders));
  }
}

void CalendarFeed::setProblem(DiagnosticsLog::Outcome outcome, const Sentence& text) {
  problem_ = {outcome, text};
  publish();
}

// The state says the worst of: getting the documents, reading them, what they hold.
void CalendarFeed::publish() {
  ServiceCheck state{DiagnosticsLog::Outcome::ok,
                     Sentence(QT_TR_NOOP("%1 events in view"), tr).arg(contents_.events.size())};
  if (!contents_.reminders.empty()) {
    state.text = state.text.followedBy(
        Sentence(QT_TR_NOOP(", %1 to-dos"), tr).arg(contents_.reminders.size()), QString());
  }
  if (!readProblem_.isEmpty()) {
    state = {DiagnosticsLog::Outcome::degraded, readProblem_.followedBy(state.text)};
  }
  if (!problem_.text.isEmpty() && problem_.outcome != DiagnosticsLog::Outcome::ok) {
    state = {problem_.outcome, problem_.text.followedBy(state.text)};
  }
  contents_.source.state = state;
  emit changed();
}

}  // namespace tindra
