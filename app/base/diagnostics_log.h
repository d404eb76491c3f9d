// DiagnosticsLog: what Tindra found out about its surroundings, for the "Diagnostics…" window:
// each provider's start-up check (which backend runs, and why a service is missing), every later
// change of a service, and the results of the checks a user asks for. Entries are kept in English
// for bug reports and the log (every entry also goes to its source's log category) and shown in
// the user's language. Main thread only.
#pragma once

#include <QDateTime>
#include <QList>
#include <QLoggingCategory>
#include <QObject>
#include <QString>

#include "base/sentence.h"

namespace tindra {

class DiagnosticsLog : public QObject {
  Q_OBJECT

 public:
  enum class Outcome { ok, degraded, failed };

  struct Entry {
    QDateTime at;
    QString source;  // the provider or check, "battery"
    Outcome outcome;
    Sentence text;
  };

  using QObject::QObject;

  void record(const QLoggingCategory& category, const QString& source, Outcome outcome,
              const Sentence& text);
  const QList<Entry>& entries() const { return entries_; }
  // Every entry as lines of English text, oldest first, for a bug report.
  QString englishText() const;
  // The same in the user's language, for the window.
  QString translatedText() const;

 signals:
  void recorded(const tindra::DiagnosticsLog::Entry& entry);

 private:
  QString text(const QString& (Sentence::*language)() const) const;

  QList<Entry> entries_;
};

}  // namespace tindra
