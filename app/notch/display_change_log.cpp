#include "notch/display_change_log.h"

#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "notch/screen_source.h"

namespace tindra {

namespace {

const QString source = QStringLiteral("displays");

}  // namespace

DisplayChangeLog::DisplayChangeLog(ScreenSource& screens, DiagnosticsLog& diagnostics,
                                   QObject* parent)
    : QObject(parent), screens_(screens), diagnostics_(diagnostics), known_(names()) {
  connect(&screens_, &ScreenSource::screensChanged, this, &DisplayChangeLog::onScreensChanged);
}

QStringList DisplayChangeLog::names() const {
  QStringList names;
  for (const PlatformScreen& screen : screens_.screens()) {
    names << QString::fromStdString(screen.candidate.name);
  }
  return names;
}

// Resizes and moves come through here too; only a name that comes or goes is news.
void DisplayChangeLog::onScreensChanged() {
  const QStringList now = names();
  for (const QString& name : known_) {
    if (now.contains(name)) continue;
    diagnostics_.record(lcNotch(), source, DiagnosticsLog::Outcome::ok,
                        Sentence(QT_TR_NOOP("display %1 went away"), tr).arg(name));
  }
  for (const QString& name : now) {
    if (known_.contains(name)) continue;
    diagnostics_.record(lcNotch(), source, DiagnosticsLog::Outcome::ok,
                        Sentence(QT_TR_NOOP("display %1 is connected"), tr).arg(name));
  }
  known_ = now;
}

}  // namespace tindra
