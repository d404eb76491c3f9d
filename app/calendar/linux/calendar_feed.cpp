#include "calendar/linux/calendar_feed.h"

#include "base/linux/idle_pages_release.h"
#include "base/qt_text.h"

namespace tindra {

std::shared_ptr<SerialWorker> CalendarFeed::reader() {
  static std::weak_ptr<SerialWorker> shared;
  std::shared_ptr<SerialWorker> worker = shared.lock();
  if (!worker) {
    worker = std::make_shared<SerialWorker>();
    shared = worker;
  }
  return worker;
}

CalendarFeed::CalendarFeed(CalendarSource source, ICalendarReadOptions options, QObject* parent)
    : QObject(parent),
      reader_(reader()),
      defaultName_(source.name),
      ownColor_(source.color),
      options_(std::move(options)),
      documents_(std::make_shared<const std::vector<std::string>>()) {
  contents_.source = std::move(source);
  options_.idPrefix = contents_.source.id.toStdString();
  if (ownColor_) options_.color = ownColor_;
  contents_.source.state = {DiagnosticsLog::Outcome::degraded,
                            Sentence(QT_TR_NOOP("not read yet"), tr)};
}

void CalendarFeed::setReadOptions(ICalendarReadOptions options) {
  options.idPrefix = options_.idPrefix;
  if (ownColor_) options.color = ownColor_;
  const bool newWindow =
      options.windowStart != options_.windowStart || options.windowEnd != options_.windowEnd;
  options_ = std::move(options);
  // A reading on its way is asked again with the new options; else the documents the feed has.
  if (pending_) {
    post(*pending_);
  } else if (holdsDocuments()) {
    post({documentsAgain(), {}, true});
  } else {
    post({[documents = documents_] { return std::optional(*documents); }, {}, true});
  }
  if (newWindow) windowChanged();
}

void CalendarFeed::accept(Gather gather, std::function<void(Outcome)> done) {
  post({std::move(gather), std::move(done), false});
}

void CalendarFeed::post(Request request) {
  pending_ = request;
  const std::uint64_t number = ++posted_;
  Gather gather = request.gather;
  reader_->post(
      this, [gather = std::move(gather), options = options_] { return read(gather, options); },
      [this, number, request = std::move(request)](std::optional<Reading> reading) {
        if (number != posted_) return;  // a newer reading follows, and says it all
        pending_.reset();
        finish(request, std::move(reading));
      });
}

// On the reader.
std::optional<CalendarFeed::Reading> CalendarFeed::read(const Gather& gather,
                                                        const ICalendarReadOptions& options) {
  std::optional<std::vector<std::string>> documents = gather();
  if (!documents) return std::nullopt;
  Reading reading;
  reading.count = documents->size();
  auto texts = std::make_shared<std::vector<std::string>>();
  for (std::string& text : *documents) {
    auto document = ICalendarReader::read(text, options);
    if (!document) {
      if (reading.failed++ == 0) reading.firstError = toQString(describe(document.error()));
      continue;
    }
    reading.documents.push_back(std::move(*document));
    texts->push_back(std::move(text));
  }
  reading.texts = std::move(texts);
  // libical builds a tree many times the document's size and frees it in small pieces, which
  // the allocator would otherwise keep for good.
  IdlePagesRelease::giveBackFreedHeap();
  return reading;
}

void CalendarFeed::finish(const Request& request, std::optional<Reading> reading) {
  const auto tell = [&](Outcome outcome) {
    if (request.done) request.done(outcome);
  };
  if (!reading) return tell(Outcome::unavailable);
  if (request.again) {
    // Held text that no longer reads (a file saved broken since) leaves the last events shown.
    if (reading->count > 0 && reading->failed == reading->count) return;
    take(std::move(*reading));
    publish();
    return;
  }
  problem_ = {};  // the documents were had
  if (reading->count > 0 && reading->failed == reading->count) {
    readProblem_ = Sentence(QT_TR_NOOP("%1; the last good copy is kept"), tr)
                       .arg(Sentence::verbatim(reading->firstError));
    publish();
    return tell(Outcome::unread);
  }
  readProblem_ = reading->failed == 0
                     ? Sentence()
                     : Sentence(QT_TR_N_NOOP("%n document(s) could not be read (%1)"), tr,
                                static_cast<int>(reading->failed))
                           .arg(reading->firstError);
  take(std::move(*reading));
  publish();
  tell(Outcome::taken);
}

void CalendarFeed::take(Reading reading) {
  if (!holdsDocuments()) documents_ = std::move(reading.texts);
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
