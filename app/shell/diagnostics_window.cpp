#include "shell/diagnostics_window.h"

#include <QFontDatabase>
#include <QVBoxLayout>

namespace tindra {

DiagnosticsWindow::DiagnosticsWindow(DiagnosticsLog& log, QWidget* parent) : QWidget(parent) {
  setWindowTitle(tr("Tindra Diagnostics"));
  resize(760, 420);
  view_.setReadOnly(true);
  view_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  view_.setLineWrapMode(QPlainTextEdit::NoWrap);
  view_.setPlainText(log.text().trimmed());
  connect(&log, &DiagnosticsLog::recorded, this, [this, &log](const DiagnosticsLog::Entry&) {
    view_.setPlainText(log.text().trimmed());
    view_.moveCursor(QTextCursor::End);
  });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(&view_);
}

}  // namespace tindra
