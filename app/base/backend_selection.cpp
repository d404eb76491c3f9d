#include "base/backend_selection.h"

#include <QStringList>
#include <QtGlobal>

#include "base/qt_text.h"

namespace tindra {

bool fakeBackendRequested(std::string_view provider) {
  const QString wanted = toQString(provider);
  const QStringList asked = qEnvironmentVariable("TINDRA_FAKE").split(u',', Qt::SkipEmptyParts);
  for (const QString& name : asked) {
    const QString trimmed = name.trimmed();
    if (trimmed == QLatin1String("all") || trimmed == wanted) return true;
  }
  return false;
}

}  // namespace tindra
