// DiagnosticsWindow: what Tindra found out about the desktop, one line per entry of the
// diagnostics log (each provider's start-up check, services that went away and came back),
// newest last, following the log as it grows.
#pragma once

#include <QPlainTextEdit>
#include <QWidget>
#include <functional>
#include <vector>

#include "base/diagnostics_log.h"

class QPushButton;

namespace tindra {

class DiagnosticsWindow : public QWidget {
  Q_OBJECT

 public:
  // A check a person can run from the window; it writes what it finds to the log.
  struct Check {
    QString title;  // "Check Now Playing adapter"
    std::function<void()> run;
  };

  DiagnosticsWindow(DiagnosticsLog& log, std::vector<Check> checks, QWidget* parent = nullptr);

  QString text() const { return view_.toPlainText(); }

  // "Copy report": puts the report of `log` on the clipboard, for a bug report.
  static QPushButton* copyReportButton(const DiagnosticsLog& log);

 private:
  QPlainTextEdit view_;
};

}  // namespace tindra
