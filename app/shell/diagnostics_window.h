// DiagnosticsWindow: what Tindra found out about the desktop, one line per entry of the
// diagnostics log (each provider's start-up check, services that went away and came back),
// newest last, following the log as it grows.
#pragma once

#include <QPlainTextEdit>
#include <QWidget>

#include "diagnostics/diagnostics_log.h"

namespace tindra {

class DiagnosticsWindow : public QWidget {
  Q_OBJECT

 public:
  explicit DiagnosticsWindow(DiagnosticsLog& log, QWidget* parent = nullptr);

  QString text() const { return view_.toPlainText(); }

 private:
  QPlainTextEdit view_;
};

}  // namespace tindra
