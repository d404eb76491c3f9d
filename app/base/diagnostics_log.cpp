#include "base/diagnostics_log.h"

namespace tindra {

namespace {

// Long runs keep the newest entries; the start-up checks come first and stay readable.
constexpr qsizetype maxEntries = 500;

const char* outcomeWord(DiagnosticsLog::Outcome outcome) {
  switch (outcome) {
    case DiagnosticsLog::Outcome::ok:
      return "ok";
    case DiagnosticsLog::Outcome::degraded:
      return "degraded";
    case DiagnosticsLog::Outcome::failed:
      return "failed";
  }
  return "";
}

}  // namespace

void DiagnosticsLog::record(const QLoggingCategory& category, const QString& source,
                            Outcome outcome, const Sentence& text) {
  if (outcome == Outcome::ok) {
    qCInfo(category).noquote() << source << text.english();
  } else {
    qCWarning(category).noquote() << source << text.english();
  }
  if (entries_.size() == maxEntries) entries_.removeFirst();
  entries_.append({QDateTime::currentDateTime(), source, outcome, text});
  emit recorded(entries_.last());
}

QString DiagnosticsLog::englishText() const {
  return text(&Sentence::english);
}

QString DiagnosticsLog::translatedText() const {
  return text(&Sentence::translated);
}

QString DiagnosticsLog::text(const QString& (Sentence::*language)() const) const {
  QString out;
  for (const Entry& entry : entries_) {
    out += QStringLiteral("%1  %2  %3  %4\n")
               .arg(entry.at.toString(Qt::ISODate), entry.source,
                    QString::fromLatin1(outcomeWord(entry.outcome)), (entry.text.*language)());
  }
  return out;
}

}  // namespace tindra
