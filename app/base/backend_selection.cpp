#include "base/backend_selection.h"

#include <QStringList>
#include <QtGlobal>

namespace tindra {

bool fakeBackendRequested(const QString& provider) {
  const QStringList asked = qEnvironmentVariable("TINDRA_FAKE").split(u',', Qt::SkipEmptyParts);
  for (const QString& name : asked) {
    const QString trimmed = name.trimmed();
    if (trimmed == QLatin1String("all") || trimmed == provider) return true;
  }
  return false;
}

}  // namespace tindra
