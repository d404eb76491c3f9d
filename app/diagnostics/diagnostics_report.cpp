#include "diagnostics/diagnostics_report.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>

#include "base/diagnostics_log.h"

namespace tindra {

QString diagnosticsReport(const DiagnosticsLog& log) {
  QStringList lines{
      QStringLiteral("Tindra %1, Qt %2").arg(QStringLiteral(TINDRA_VERSION), qVersion()),
      QStringLiteral("System: %1, kernel %2 (%3)")
          .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(),
               QSysInfo::currentCpuArchitecture()),
      QStringLiteral("Session: %1 on %2, Qt platform %3")
          .arg(qEnvironmentVariable("XDG_CURRENT_DESKTOP", QStringLiteral("unknown desktop")),
               qEnvironmentVariable("XDG_SESSION_TYPE", QStringLiteral("an unknown session")),
               QGuiApplication::platformName())};
  for (const QScreen* screen : QGuiApplication::screens()) {
    lines << QStringLiteral("Display %1: %2×%3 at %4,%5, scale %6")
                 .arg(screen->name())
                 .arg(screen->geometry().width())
                 .arg(screen->geometry().height())
                 .arg(screen->geometry().x())
                 .arg(screen->geometry().y())
                 .arg(screen->devicePixelRatio());
  }
  lines << QString() << log.englishText().trimmed();
  return lines.join(u'\n') + u'\n';
}

}  // namespace tindra
