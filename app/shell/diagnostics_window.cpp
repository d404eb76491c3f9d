#include "shell/diagnostics_window.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "diagnostics/diagnostics_report.h"

namespace tindra {

DiagnosticsWindow::DiagnosticsWindow(DiagnosticsLog& log, std::vector<Check> checks,
                                     QWidget* parent)
    : QWidget(parent) {
  setWindowTitle(tr("Tindra Diagnostics"));
  resize(760, 420);
  view_.setReadOnly(true);
  view_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  view_.setLineWrapMode(QPlainTextEdit::NoWrap);
  view_.setPlainText(log.translatedText().trimmed());
  connect(&log, &DiagnosticsLog::recorded, this, [this, &log](const DiagnosticsLog::Entry&) {
    view_.setPlainText(log.translatedText().trimmed());
    view_.moveCursor(QTextCursor::End);
  });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(&view_);
  auto* buttons = new QHBoxLayout;
  for (Check& check : checks) {
    auto* button = new QPushButton(check.title);
    connect(button, &QPushButton::clicked, this, std::move(check.run));
    buttons->addWidget(button);
  }
  buttons->addStretch();
  buttons->addWidget(copyReportButton(log));
  layout->addLayout(buttons);
}

QPushButton* DiagnosticsWindow::copyReportButton(const DiagnosticsLog& log) {
  auto* copy = new QPushButton(tr("Copy report"));
  connect(copy, &QPushButton::clicked, copy,
          [&log] { QGuiApplication::clipboard()->setText(diagnosticsReport(log)); });
  return copy;
}

}  // namespace tindra
