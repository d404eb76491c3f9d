// DiagnosticsLog: what Tindra found out about its surroundings, for the "Diagnostics…" window:
// each provider's start-up check (which backend runs, and why a service is missing) and the
// results of the checks a user asks for. Every entry also goes to the provider's log category.
// Main thread only.
#pragma once

#include <QDateTime>
#include <QList>
#include <QLoggingCategory>
#include <QObject>
#include <QString>

namespace tindra {

class DiagnosticsLog : public QObject {
  Q_OBJECT

 public:
  enum class Outcome { ok, degraded, failed };

  struct Entry {
    QDateTime at;
    QString source;  // the provider or check, "battery"
    Outcome outcome;
    QString text;  // one sentence for a person
  };

  using QObject::QObject;

  void record(const QLoggingCategory& category, const QString& source, Outcome outcome,
              const QString& text);
  const QList<Entry>& entries() const { return entries_; }
  // Every entry as lines of text, oldest first.
  QString text() const;

 signals:
  void recorded(const tindra::DiagnosticsLog::Entry& entry);

 private:
  QList<Entry> entries_;
};

}  // namespace tindra
