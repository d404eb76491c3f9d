// Diagnostics are read in two languages: the window in the user's, the log and the report (which
// go into bug reports) in English.
#include "shell/diagnostics_window.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QPushButton>
#include <QTranslator>

#include "base/diagnostics_log.h"
#include "base/logging_categories.h"

namespace tindra {
namespace {

QStringList logged;

void keepMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
  logged << message;
}

TEST(DiagnosticsWindowTest, TheWindowSpeaksTheUsersLanguageTheLogAndTheReportEnglish) {
  QTranslator norwegian;
  ASSERT_TRUE(norwegian.load(QLocale(QStringLiteral("nb_NO")), QStringLiteral("tindra"),
                             QStringLiteral("_"), QStringLiteral(":/i18n")));
  QCoreApplication::installTranslator(&norwegian);
  const QtMessageHandler previous = qInstallMessageHandler(keepMessage);
  QLoggingCategory::setFilterRules(QStringLiteral("com.brenvik.tindra.*.info=true"));

  DiagnosticsLog log;
  log.record(
      lcBattery(), QStringLiteral("battery"), DiagnosticsLog::Outcome::degraded,
      Sentence::in("tindra::FakeBatteryBackend", "invented readings (TINDRA_FAKE asks for them)"));
  qInstallMessageHandler(previous);
  QCoreApplication::removeTranslator(&norwegian);

  ASSERT_EQ(logged.size(), 1);
  EXPECT_TRUE(logged.front().endsWith("battery invented readings (TINDRA_FAKE asks for them)"))
      << logged.front().toStdString();
  DiagnosticsWindow window(log, {});
  EXPECT_TRUE(window.text().contains(QStringLiteral("oppdiktede målinger")))
      << window.text().toStdString();
  for (QPushButton* button : window.findChildren<QPushButton*>()) button->click();
  const QString report = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(report.contains(QStringLiteral("invented readings (TINDRA_FAKE asks for them)")));
  EXPECT_FALSE(report.contains(QStringLiteral("oppdiktede")));
}

}  // namespace
}  // namespace tindra
